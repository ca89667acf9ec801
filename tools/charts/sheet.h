#pragma once

#include "percentiles.h"

#include "paediatrics/charts/chartcatalogue.h"

#include <QColor>

/// What stands on a chart picture, planned before it is painted. All lengths are twips within the picture.

/// A grid line: `weight` 0 is a fine one, 1 one that usually bears a label, 2 a whole year.
struct Tick {
    double at; ///< days, centimetres or the measure's unit
    int weight;
    QString label = {};
};

/// One measure drawn into one calibration frame.
struct Plot {
    charts::Measure measure;
    charts::Frame frame; ///< within the picture
    QRectF area;         ///< the part of the frame that is drawn
    std::vector<Slice> slices;
    QStringList percentiles;
    QColor ink;
    std::vector<Tick> across;
    std::vector<Tick> up;
    QString upTitle;
    bool namesCurves = true;    ///< the percentiles are told where the curves end
    QPainterPath gridClip = {}; ///< where the lines of its values are drawn; empty: in the whole area
    bool valuesAtRight = false; ///< the values are told at the right edge too
};

enum class TitlePlace { AboveThePlot, InThePlot, BesideThePlot };

struct Sheet {
    QString file; ///< below the folder of pictures
    QSizeF size;
    QString sex; ///< as in the names of the tables
    QString title;
    QString subtitle;
    QString source;
    QString acrossTitle;
    TitlePlace titlePlace;
    std::vector<Plot> plots;
};

Sheet plan(const charts::ClassicalChart &chart, const QDir &tables);
Sheet plan(const charts::WhoChart &chart);
