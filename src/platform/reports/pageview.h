#pragma once

#include "platform/reports/report.h"

#include <QAbstractScrollArea>
#include <QPixmap>

namespace reports
{

/// A report as a person leafs through it: one page at a time, at a zoom of choice. Page Up and Page Down,
/// and the wheel at the page's ends, turn the pages; Ctrl with the wheel zooms.
class PageView : public QAbstractScrollArea
{
    Q_OBJECT
public:
    PageView(const QString &name, Report &report);

    int page() const { return page_; } ///< from 0
    /// Goes to a page, or to the last one if there are not so many. May lay out all pages before it.
    void goTo(int page);

    enum class Fit { Page, Width, None };
    void setFit(Fit fit);
    void zoomBy(double factor);
    double zoom() const; ///< 1 is the size of the paper

    /// Frames what was found on the page; nothing without a place.
    void mark(int page, const QRectF &dots);

signals:
    void pageChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QSizeF pageInPixels() const;
    double scale() const; ///< pixels a dot
    void adjustBars();
    void turn(int pages);
    const QPixmap &picture();

    Report &report_;
    int page_ = 0;
    Fit fit_ = Fit::Width;
    double zoom_ = 1;
    QRectF mark_;
    QPixmap picture_;
    QString pictureKey_; ///< what the picture shows
};

} // namespace reports
