#include "platform/forms/application.h"

#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"
#include "platform/forms/style.h"

#include <QFont>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QTranslator>

namespace forms
{

namespace
{

constexpr QRgb ground = 0xfff3f6f8;
constexpr QRgb field = 0xffffffff;
constexpr QRgb stripe = 0xfff5f9fb;
constexpr QRgb button = 0xffe9eff3;
constexpr QRgb ink = 0xff1f2d38;
constexpr QRgb faint = 0xff93a1ad; // of what is disabled
constexpr QRgb hint = 0xff5d6b77;
constexpr QRgb accent = 0xff1f7a8c;

QPalette calmPalette()
{
    QPalette palette{QColor(button), QColor(ground)};
    palette.setColor(QPalette::Base, QColor(field));
    palette.setColor(QPalette::AlternateBase, QColor(stripe));
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(ink));
        palette.setColor(QPalette::Disabled, role, QColor(faint));
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(ground));
    palette.setColor(QPalette::PlaceholderText, QColor(hint));
    palette.setColor(QPalette::Highlight, QColor(accent));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(faint));
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0xff5a6f7c));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(accent));
    palette.setColor(QPalette::ToolTipBase, QColor(0xfffffbe6));
    palette.setColor(QPalette::ToolTipText, QColor(ink));
    return palette;
}

/// Only what the palette cannot say; grounds and inks stay the palette's, so that a control may have its own.
constexpr char sheet[] = R"(
QGroupBox { font-weight: 600; color: #1f7a8c; border: 1px solid #d3dde4; border-radius: 6px; margin-top: 9px; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 10px; padding: 0 4px; }
QHeaderView::section { background: #e4ecf0; color: #1f2d38; border: 0; border-right: 1px solid #d3dde4;
    border-bottom: 1px solid #c3d0d8; padding: 4px 3px; font-weight: 600; }
QTableView { gridline-color: #e1e8ed; }
QToolTip { border: 1px solid #d9cf9c; padding: 3px; }
QMenuBar { background: #e9eff3; }
QMenu { border: 1px solid #c3d0d8; padding: 4px; }
QMenu::item { padding: 5px 26px 5px 22px; border-radius: 4px; }
QMenu::item:selected { background: #1f7a8c; color: white; }
QMenu::item:disabled { color: #5d6b77; }
QMenu::separator { height: 1px; background: #d3dde4; margin: 4px 8px; }
QPushButton:focus { outline: 0; }
)";

void chooseFont()
{
    for (const char *family : {"DejaVu Sans", "Liberation Sans"}) {
        if (!QFontDatabase::hasFamily(QLatin1String(family)))
            continue;
        QApplication::setFont(QFont(QLatin1String(family), 9));
        return;
    }
}

void speakSpanish()
{
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Argentina));
    static QTranslator translator;
    if (translator.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&translator);
}

} // namespace

Application::Application(int &argc, char **argv) : QApplication(argc, argv)
{
    setQuitOnLastWindowClosed(false); // the splash and the login close before the main window opens
    dress();
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &error) {
        showUnhandled(error);
    }
    return true;
}

void Application::dress()
{
    setStyle(new Style);
    setPalette(calmPalette());
    chooseFont();
    qApp->setStyleSheet(QString::fromLatin1(sheet));
    speakSpanish();
}

} // namespace forms

#include "moc_application.cpp"
