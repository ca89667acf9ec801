#include "paediatrics/control/controlSano.h"

#include "core/services/planDeVacunas.h"
#include "core/session/session.h"
#include "paediatrics/pressure/presionEnPalabras.h"
#include "paediatrics/vaccines/atrasos.h"
#include "paediatrics/vaccines/planilla.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace sano
{

namespace
{

constexpr qint64 ultimoDeRecienNacido = 30, ultimoDeLactante = 730, ultimoDeEscolar = 4380; // days of life

dao::Recordset leer(const QString &sql, qint64 paciente)
{
    return BaseDatos.openRecordset(sql.arg(paciente), dao::Recordset::Kind::Snapshot);
}

/// A line for each of the patient's rows.
template <class Linea>
QStringList lineas(const QString &sql, qint64 paciente, Linea &&linea)
{
    QStringList todas;
    for (dao::Recordset fila = leer(sql, paciente); !fila.eof(); fila.moveNext())
        todas += linea(fila);
    return todas;
}

struct Lugar {
    Tabla tabla;
    QStringView nombre;
};
constexpr Lugar lugaresDeProblemas[] = {{Tabla::PatologiasFamiliares, u"Patologias Familiares"},
                                        {Tabla::DiagnosticoRN, u"diagnostico RN"}};

void reemplazar(const QString &tabla, const QString &columna, qint64 paciente, const QStringList &textos)
{
    BaseDatos.execute(u"Delete * from [%1] where paciente = %2"_s.arg(tabla).arg(paciente));
    dao::Recordset filas = BaseDatos.openRecordset(tabla);
    for (const QString &texto : textos) {
        filas.addNew();
        filas[u"Paciente"] = paciente;
        filas[columna] = texto;
        filas.update();
    }
}

/// What is in the one and not in the other, each as often as it is there more.
Problemas resta(Problemas de, const Problemas &otros)
{
    for (const Problema &otro : otros)
        if (const auto igual = std::ranges::find(de, otro); igual != de.end())
            de.erase(igual);
    return de;
}

/// The table standing on the row of the patient's question, which is made when there is none.
void buscarPregunta(dao::Recordset &filas, qint64 paciente, const QString &pregunta)
{
    filas.setIndex(u"PacDes");
    filas.seek(u"=", {paciente, pregunta});
    if (!filas.noMatch())
        return;
    filas.addNew();
    filas[u"Paciente"] = paciente;
    filas[u"Descripcion"] = pregunta;
    filas.update();
    filas.setBookmark(filas.lastModified());
}

dao::Recordset fichaPerinatal(qint64 paciente)
{
    dao::Recordset ficha =
        BaseDatos.openRecordset(u"Select * from Perinatal where idPaciente = %1"_s.arg(paciente));
    if (ficha.eof()) {
        ficha.addNew();
        ficha[u"idPaciente"] = paciente;
        ficha.update();
        ficha.requery();
    }
    return ficha;
}

QString columnaDeValor(const QString &prueba)
{
    return prueba + u" (Valor)"_s;
}

} // namespace

Franja franjaDe(qint64 diasDeVida)
{
    if (diasDeVida <= ultimoDeRecienNacido)
        return Franja::RecienNacido;
    if (diasDeVida <= ultimoDeLactante)
        return Franja::Lactante;
    return diasDeVida <= ultimoDeEscolar ? Franja::PreYEscolar : Franja::Adolescente;
}

QString rotulo(Franja franja)
{
    switch (franja) {
    case Franja::RecienNacido:
        return u"Recien Nacido"_s;
    case Franja::Lactante:
        return u"Lactante"_s;
    case Franja::PreYEscolar:
        return u"Pre y Escolar"_s;
    case Franja::Adolescente:
        return u"Adolescente"_s;
    }
    Q_UNREACHABLE();
}

Problemas problemas(qint64 paciente)
{
    Problemas todos;
    for (const Lugar &lugar : lugaresDeProblemas)
        for (const QString &nombre :
             lineas(u"Select * from [%1] where paciente = %2"_s.arg(lugar.nombre, u"%1"_s), paciente,
                    [](dao::Recordset &fila) { return fila[u"Patologia"].text(); }))
            todos.push_back({nombre, lugar.tabla});
    return todos;
}

Problemas conciliar(const Problemas &antes, const Problemas &enLista, const Problemas &ahora)
{
    Problemas resultado = resta(ahora, resta(antes, enLista));
    // What somebody else wrote meanwhile is not added a second time.
    const Problemas agregados = resta(resta(enLista, antes), resta(ahora, antes));
    resultado.insert(resultado.end(), agregados.begin(), agregados.end());
    return resultado;
}

QStringList datosPositivos(qint64 paciente)
{
    return lineas(u"Select * from [Examen Fisico] where paciente = %1"_s, paciente,
                  [](dao::Recordset &fila) { return fila[u"dato positivo"].text(); });
}

void guardarListas(qint64 paciente, const Problemas &problemas, const QStringList &datosPositivos)
{
    dao::Batch golpe(BaseDatos);
    for (const Lugar &lugar : lugaresDeProblemas) {
        QStringList suyos;
        for (const Problema &problema : problemas)
            if (problema.tabla == lugar.tabla)
                suyos += problema.nombre;
        reemplazar(lugar.nombre.toString(), u"Patologia"_s, paciente, suyos);
    }
    reemplazar(u"Examen Fisico"_s, u"dato positivo"_s, paciente, datosPositivos);
    golpe.commit();
}

QStringList antecedentesFamiliares(qint64 paciente)
{
    return lineas(u"Select * from Antecedentes where Paciente = %1"_s, paciente, [](dao::Recordset &fila) {
        return fila[u"Pariente"].text() + u" ---> "_s + fila[u"Afeccion"].text();
    });
}

QStringList problemasNeurologicos(qint64 paciente)
{
    return lineas(
        u"Select * from [Maduracion Neurologica] where paciente = %1 and (calificacion like 'noco*' or calificacion = 'SI')"_s,
        paciente, [](dao::Recordset &fila) {
            const bool noLoHace = fila[u"calificacion"].text().startsWith(u"noco", Qt::CaseInsensitive);
            return (noLoHace ? u"No "_s : QString()) + fila[u"detalle"].text();
        });
}

QStringList alimentos(qint64 paciente)
{
    return lineas(u"Select * from Alimentacion where paciente = %1 order by fecha, Alimento"_s, paciente,
                  [](dao::Recordset &fila) {
                      return fila[u"Alimento"].text() +
                             (fila[u"tolerado"].truth() ? QString() : u" (no lo tolera)"_s);
                  });
}

QStringList escolaridad(qint64 paciente)
{
    return lineas(
        u"Select * from SocioEscolar where idPaciente = %1 order by Signo"_s, paciente,
        [](dao::Recordset &fila) { return fila[u"Signo"].text() + u" : "_s + fila[u"Valor"].text(); });
}

QStringList vacunasQueFaltan(qint64 paciente, basic::Date nacimiento)
{
    const std::vector<vacunas::DosisDelPlan> plan = vacunas::plan();
    if (plan.empty())
        return {};
    vacunas::Planilla planilla = vacunas::planilla(plan);
    planilla.ponerEstados(paciente, vacunas::edadDelPlan(nacimiento, basic::today()));
    return vacunas::dosisQueFaltan(planilla, paciente);
}

Binomio binomio(qint64 paciente)
{
    Binomio respuestas;
    dao::Recordset filas = BaseDatos.openRecordset(u"Binomio"_s);
    for (std::size_t i = 0; i < respuestas.size(); ++i) {
        buscarPregunta(filas, paciente, QString::fromUtf16(preguntasDelBinomio[i]));
        respuestas[i] = filas[u"Resultado"].value();
    }
    return respuestas;
}

void guardar(qint64 paciente, const Binomio &respuestas)
{
    dao::Recordset filas = BaseDatos.openRecordset(u"Binomio"_s);
    for (std::size_t i = 0; i < respuestas.size(); ++i) {
        buscarPregunta(filas, paciente, QString::fromUtf16(preguntasDelBinomio[i]));
        filas.edit([&] { filas[u"Resultado"] = respuestas[i]; });
    }
}

Screening screening(qint64 paciente)
{
    Screening pruebas;
    dao::Recordset ficha = fichaPerinatal(paciente);
    for (std::size_t i = 0; i < pruebas.size(); ++i) {
        const QString prueba = QString::fromUtf16(pruebasDeScreening[i]);
        pruebas[i] = {ficha[prueba].value(), ficha[columnaDeValor(prueba)].text()};
    }
    return pruebas;
}

void guardar(qint64 paciente, const Screening &pruebas)
{
    dao::Recordset ficha = fichaPerinatal(paciente);
    ficha.edit([&] {
        for (std::size_t i = 0; i < pruebas.size(); ++i) {
            const QString prueba = QString::fromUtf16(pruebasDeScreening[i]);
            ficha[prueba] = pruebas[i].positiva;
            ficha[columnaDeValor(prueba)] = pruebas[i].valor;
        }
    });
}

QString maduracionSexual(qint64 paciente)
{
    dao::Recordset ultima =
        leer(u"Select top 1 * from [Maduracion Sexual] where paciente = %1 order by fecha desc"_s, paciente);
    return ultima.eof() ? QString() : ultima[u"Resultado"].text();
}

void guardarMaduracionSexual(qint64 paciente, basic::Date fecha, const QString &resultado)
{
    dao::Recordset filas =
        BaseDatos.openRecordset(u"Select * from [Maduracion Sexual] where paciente = %1 and fecha = %2"_s.arg(
            QString::number(paciente), basic::sqlDate(fecha)));
    const auto escribir = [&] {
        filas[u"paciente"] = paciente;
        filas[u"fecha"] = fecha;
        filas[u"Resultado"] = resultado;
    };
    if (!filas.eof()) {
        filas.edit(escribir);
        return;
    }
    filas.addNew();
    escribir();
    filas.update();
}

Medidas ultimaMedicion(qint64 paciente)
{
    dao::Recordset ultima =
        leer(u"Select top 1 * from Medidas where Paciente = %1 order by fecha desc"_s, paciente);
    if (ultima.eof())
        return {};
    return {ultima[u"Peso"].value(), ultima[u"Talla"].value(), ultima[u"Pc"].value()};
}

QStringList ultimaTension(qint64 paciente, const QString &sexo, basic::Date nacimiento)
{
    dao::Recordset ultima =
        leer(u"Select top 1 * from TomaPresion where Paciente = %1 order by fecha desc"_s, paciente);
    if (ultima.eof())
        return {};
    const presion::Toma toma{ultima[u"fecha"].date(), ultima[u"minima"].number(), ultima[u"maxima"].number()};
    return {basic::dateText(toma.fecha),
            presion::enPalabras(presion::Cual::Maxima, paciente, sexo, nacimiento, toma),
            presion::enPalabras(presion::Cual::Minima, paciente, sexo, nacimiento, toma)};
}

} // namespace sano
