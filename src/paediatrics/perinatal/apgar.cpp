#include "paediatrics/perinatal/apgar.h"

#include "platform/basic/runtime.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace perinatal
{

namespace
{

struct Signo {
    const char16_t *rotulo, *columna;
};

constexpr Signo signos[] = {{u"Latidos cardíacos :", u"Latidos"},
                            {u"Respiración :", u"Respiracion"},
                            {u"Tono :", u"tono"},
                            {u"Reflejos :", u"reflejos"},
                            {u"Color :", u"color"}};
constexpr int cuantos = static_cast<int>(std::size(signos));
constexpr int primerTotal = 2 * cuantos;
constexpr const char16_t *momentos[] = {u"1 min", u"5 min"};
constexpr int anchoDePuntaje = 64;

} // namespace

QString totalDeApgar(const QStringList &puntajes)
{
    double total = 0;
    for (const QString &puntaje : puntajes)
        total += basic::toNumber(puntaje).value_or(0);
    return basic::Value(total).text();
}

Apgar::Puntaje::Puntaje(const QString &nombre) : TextBox(nombre, 2)
{
}

void Apgar::Puntaje::focusInEvent(QFocusEvent *event)
{
    TextBox::focusInEvent(event);
    QMetaObject::invokeMethod(this, &QLineEdit::selectAll,
                              Qt::QueuedConnection); // after the click's own place
}

Apgar::Apgar(Campos &campos)
{
    for (int columna = 0; columna < 2; ++columna) {
        const QStringView momento(momentos[columna]);
        for (int signo = 0; signo < cuantos; ++signo) {
            Puntaje &caja = Text4.add(columna * cuantos + signo);
            campos.ligar(u"Apgar %1 %2"_s.arg(QStringView(signos[signo].columna), momento), caja);
            caja.setAccessibleName(u"%1 %2"_s.arg(QStringView(signos[signo].rotulo), momento));
            QObject::connect(&caja, &QLineEdit::textEdited, &caja, [this, columna] { sumar(columna); });
        }
        campos.ligar(u"Apgar total %1"_s.arg(momento), Text40.add(primerTotal + columna, 3));
    }
    for (const auto &[indice, caja] : Text4)
        caja->setFixedWidth(anchoDePuntaje);
    for (const auto &[indice, caja] : Text40)
        caja->setFixedWidth(anchoDePuntaje);
}

void Apgar::sumar(int columna)
{
    QStringList puntajes;
    for (int signo = 0; signo < cuantos; ++signo)
        puntajes += Text4(columna * cuantos + signo).text();
    Text40(primerTotal + columna).setText(totalDeApgar(puntajes));
}

Item Apgar::contenido()
{
    std::vector<FieldRow> filas;
    for (int signo = 0; signo < cuantos; ++signo)
        filas.emplace_back(QString::fromUtf16(signos[signo].rotulo),
                           Row{Text4(signo), Text4(cuantos + signo), Stretch()});
    filas.emplace_back(u"TOTAL :"_s, Row{Text40(primerTotal), Text40(primerTotal + 1), Stretch()});
    return Column{Fields(std::move(filas)), Stretch()};
}

} // namespace perinatal
