#include "practice/professionals/calendarioAnual.h"

#include "core/services/services.h"
#include "platform/basic/environment.h"
#include "platform/forms/layout.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QTextCharFormat>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace forms;

namespace practice
{

namespace
{

constexpr int meses = 12;
constexpr int anchoMes = 200; // pixels
constexpr int altoMes = 190;
constexpr int primerAno = 1900;

/// The days of the neighbouring months, which fill up the weeks, are not shown.
void ocultarVecinos(MonthView &mes)
{
    auto *dias = mes.findChild<QAbstractItemView *>();
    QPalette paleta = dias->palette();
    paleta.setColor(QPalette::Disabled, QPalette::Text, paleta.color(QPalette::Active, QPalette::Window));
    dias->setPalette(paleta);
}

} // namespace

CalendarioAnual::CalendarioAnual()
{
    setObjectName(u"CalendarioAnual"_s);
    ano_ = basic::today().date().year();
    txtAno.setText(QString::number(ano_));
    txtAno.setMaximumWidth(60);
    armarTira();
    setContents(this, Column{
                          Row{Fields{{u"Añ&o a visualizar :"_s, Row{txtAno, UpDown1}}}, Space(16),
                              lblHorarios, Stretch()},
                          picFonCals,
                      });
    layout()->setContentsMargins({});
    connect(&UpDown1, &UpDown::stepped, this,
            [this](int paso) { txtAno.setText(QString::number(ano_ + paso)); });
    connect(&txtAno, &QLineEdit::textChanged, this, [this](const QString &texto) {
        if (const int ano = texto.toInt(); ano >= primerAno) {
            ano_ = ano;
            redibujar();
        }
    });
}

void CalendarioAnual::armarTira()
{
    picFonCals.setObjectName(u"picFonCals"_s);
    picFonCals.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    picFonCals.horizontalScrollBar()->setObjectName(u"HScroll1"_s);
    picFonCals.setFrameShape(QFrame::NoFrame);
    auto *tira = new QWidget;
    auto *columnas = new QHBoxLayout(tira);
    columnas->setContentsMargins({});
    for (int mes = 0; mes < meses; ++mes) {
        Label &titulo = lblMes.add(mes);
        titulo.setAlignment(Qt::AlignCenter);
        MonthView &vista = mv1.add(mes);
        vista.setNavigationBarVisible(false);
        vista.setHorizontalHeaderFormat(QCalendarWidget::SingleLetterDayNames);
        vista.setFixedSize(anchoMes, altoMes);
        ocultarVecinos(vista);
        auto *columna = new QVBoxLayout;
        columnas->addLayout(columna);
        columna->addWidget(&titulo);
        columna->addWidget(&vista);
        connect(&vista, &QCalendarWidget::clicked, this, [this, mes](QDate dia) { mostrarDia(mes, dia); });
    }
    picFonCals.setWidget(tira);
    picFonCals.setFixedHeight(tira->sizeHint().height() +
                              picFonCals.horizontalScrollBar()->sizeHint().height());
}

void CalendarioAnual::setProfesional(qint64 idProfesional)
{
    idProfesional_ = idProfesional;
    redibujar();
}

void CalendarioAnual::irA(QDate dia)
{
    if (dia.year() == ano_)
        redibujar();
    else
        txtAno.setText(QString::number(dia.year()));
    picFonCals.horizontalScrollBar()->setValue(lblMes(dia.month() - 1).x());
}

void CalendarioAnual::redibujar()
{
    dias_ = diasDeTrabajo(idProfesional_, ano_);
    for (int mes = 0; mes < meses; ++mes)
        mostrarMes(mes);
    lblHorarios.clear();
}

void CalendarioAnual::mostrarMes(int mes)
{
    const QDate primero(ano_, mes + 1, 1);
    const QDate ultimo(ano_, mes + 1, primero.daysInMonth());
    lblMes(mes).setCaption(MODULE11::NombreMes(mes + 1) + u' ' + QString::number(ano_));
    MonthView &vista = mv1(mes);
    vista.setDateTextFormat({}, {});
    vista.setDateRange(primero, ultimo);
    vista.setCurrentPage(ano_, mes + 1);
    vista.setChoiceShown(false); // every month has a day selected; only the one that was clicked shows it
    QTextCharFormat negrita;
    negrita.setFontWeight(QFont::Bold);
    for (auto dia = dias_.lower_bound(primero); dia != dias_.end() && dia->first <= ultimo; ++dia)
        vista.setDateTextFormat(dia->first, negrita);
}

void CalendarioAnual::mostrarDia(int mes, QDate dia)
{
    for (auto &[indice, vista] : mv1)
        vista->setChoiceShown(indice == mes);
    const auto atencion = dias_.find(dia);
    lblHorarios.setCaption(atencion == dias_.end() ? u"Sin turnos asignados."_s : atencion->second.texto());
}

} // namespace practice

#include "moc_calendarioAnual.cpp"
