#include "complements.h"

#include "clinical/laboratory/panComplem.h"
#include "core/session/session.h"
#include "platform/richtext/pictures.h"
#include "platform/richtext/richtext.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTextCursor>
#include <QTextDocument>

#include <iostream>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace bench
{

namespace
{

constexpr int pictures = 10;
constexpr qsizetype megabyte = 1'000'000;
constexpr double patience = 300; // milliseconds
const QString examination = u"<Medición>"_s;

/// Noise, which no format makes small: some 40 KB as a JPEG.
QByteArray photograph(QRandomGenerator &dice)
{
    QImage image(240, 180, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, dice.generate());
    QByteArray file;
    QBuffer buffer(&file);
    image.save(&buffer, "JPG", 80);
    return file;
}

QByteArray largeReport()
{
    QRandomGenerator dice(1);
    QTextDocument document;
    QTextCursor cursor(&document);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    for (int i = 0; i < pictures; ++i)
        cursor.insertImage(*richtext::addPicture(document, photograph(dice)));
    QByteArray file = richtext::write(document);
    while (file.size() < megabyte) {
        for (int i = 0; i < 100; ++i) {
            cursor.insertBlock();
            cursor.insertText(u"Fracción: "_s, bold);
            cursor.insertText(u"de eyección del ventrículo izquierdo, 62 %, dentro de lo normal"_s, {});
        }
        file = richtext::write(document);
    }
    return file;
}

void openAndSave(qint64 patient, const Report &report)
{
    QElapsedTimer opening;
    modally(
        [&] {
            opening.start();
            complementos::abrir(patient, examination);
        },
        [&](forms::Form &window) {
            window.grab();
            report("a report of 1 MB with ten pictures, open to first paint", milliseconds(opening),
                   patience);
            report("the same, saved", elapsed([&] { in<forms::CommandButton>(window, "Command1").click(); }),
                   patience);
            window.unload();
        });
}

} // namespace

void complements(const Report &report)
{
    const dao::Recordset patients = BaseDatos.openRecordset(u"Select top 1 Numero from Pacientes"_s);
    if (patients.eof()) {
        std::cout << "skipped: the reports of examinations, no patients\n";
        return;
    }
    const qint64 patient = patients.value(0).integer();
    QFile file(complementos::leer(patient, examination).informe);
    QDir().mkpath(QFileInfo(file).absolutePath());
    if (!file.open(QIODevice::WriteOnly))
        throw std::runtime_error("the report cannot be written");
    file.write(largeReport());
    file.close();
    openAndSave(patient, report);
    file.remove();
    BaseDatos.execute(u"Delete * from Complementos where Examen = '%1'"_s.arg(examination));
}

} // namespace bench
