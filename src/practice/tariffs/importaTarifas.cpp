#include "practice/tariffs/importaTarifas.h"

#include "practice/tariffs/importe.h"
#include "practice/tariffs/tarifas.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <optional>

using namespace Qt::StringLiterals;

namespace tarifas
{

namespace
{

/// The fields of each line; a text in quotes may hold the separator and line breaks, and a doubled quote.
std::vector<QStringList> renglones(const QString &texto, QChar separador)
{
    std::vector<QStringList> todos;
    QStringList campos;
    QString campo;
    bool citado = false;
    const auto terminaRenglon = [&] {
        campos += std::exchange(campo, {}).trimmed();
        todos.push_back(std::exchange(campos, {}));
    };
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const QChar c = texto[i];
        if (c == u'"' && citado && i + 1 < texto.size() && texto[i + 1] == u'"')
            campo += texto[++i];
        else if (c == u'"' && (citado || campo.trimmed().isEmpty()))
            citado = !citado;
        else if (c == separador && !citado)
            campos += std::exchange(campo, {}).trimmed();
        else if (c == u'\n' && !citado)
            terminaRenglon();
        else if (c != u'\r')
            campo += c;
    }
    if (!campo.isEmpty() || !campos.isEmpty())
        terminaRenglon();
    return todos;
}

QChar separadorDe(const QString &texto)
{
    const QString titulos = texto.section(u'\n', 0, 0);
    QChar elegido = u';';
    for (const QChar separador : {u',', u'\t'})
        if (titulos.count(separador) > titulos.count(elegido))
            elegido = separador;
    return elegido;
}

/// Letters and digits alone, without accents: how a column is named differs from file to file.
QString esencia(QStringView titulo)
{
    QString letras;
    for (const QChar c : titulo.toString().normalized(QString::NormalizationForm_D).toLower())
        if (c.isLetterOrNumber())
            letras += c;
    return letras;
}

/// For each field of a line the column it goes to, or none.
std::vector<std::optional<int>> destinos(const QStringList &titulos)
{
    std::vector<std::optional<int>> todos;
    for (const QString &titulo : titulos) {
        std::optional<int> &destino = todos.emplace_back();
        for (int i = 0; i < static_cast<int>(columnas.size()); ++i)
            if (esencia(titulo) == esencia(columnas[i].campo) ||
                esencia(titulo) == esencia(columnas[i].titulo))
                destino = i;
    }
    return todos;
}

/// Files of other programs have a decimal point where it cannot be the mark of thousands: "1500.50".
std::optional<basic::Currency> importeDeArchivo(QString texto)
{
    static const QRegularExpression punto(u"^-?\\d+\\.\\d+$"_s);
    static const QRegularExpression miles(u"^-?[1-9]\\d{0,2}(\\.\\d{3})+$"_s);
    if (texto.contains(punto) && !texto.contains(miles))
        texto.replace(u'.', u',');
    return importes::escrito(texto);
}

using Valores = std::array<std::optional<QString>, columnas.size()>; ///< what a line has of each column

/// Why the line is not taken in; empty when it is.
QString reparo(const Valores &valores, bool nueva)
{
    if (valores[cCodigo].value_or(QString()).isEmpty())
        return u"sin código"_s;
    if (valores[cCodigo]->size() > columnas[cCodigo].largo)
        return u"el código tiene más de %1 caracteres"_s.arg(columnas[cCodigo].largo);
    if (nueva && valores[cDescripcion].value_or(QString()).isEmpty())
        return u"prestación nueva sin descripción"_s;
    for (std::size_t i = 0; i < columnas.size(); ++i)
        if (columnas[i].tipo != Columna::Texto && valores[i] && !valores[i]->isEmpty() &&
            !importeDeArchivo(*valores[i]))
            return u"\"%1\" no es un número en %2"_s.arg(*valores[i], columnas[i].titulo);
    return {};
}

basic::Value valorDe(const Columna &columna, const QString &texto)
{
    if (columna.tipo == Columna::Texto)
        return texto.left(columna.largo);
    const basic::Currency numero = texto.isEmpty() ? basic::Currency() : *importeDeArchivo(texto);
    return columna.tipo == Columna::Importe ? basic::Value(numero)
                                            : basic::Value(basic::nearestWhole(numero.toDouble()));
}

void escribe(dao::Recordset &tabla, const Valores &valores, bool nueva)
{
    const auto cambios = [&] {
        for (std::size_t i = 0; i < columnas.size(); ++i)
            if (valores[i] || (nueva && columnas[i].tipo != Columna::Texto))
                tabla[columnas[i].campo] = valorDe(columnas[i], valores[i].value_or(QString()));
    };
    if (!nueva) {
        tabla.edit(cambios);
        return;
    }
    tabla.addNew();
    cambios();
    tabla.update();
}

} // namespace

QString textoDeArchivo(const QByteArray &archivo)
{
    QStringDecoder utf8(QStringConverter::Utf8);
    const QString texto = utf8(archivo);
    if (!utf8.hasError())
        return texto;
    // What Windows-1252 has between 80 and 9F is no letter of a tariff, but for the sign of the euro.
    return QString::fromLatin1(archivo).replace(QChar(0x80), u'€');
}

Importacion importaCsv(dao::Database &base, const QString &texto,
                       const std::function<bool(qint64 hechas, qint64 de)> &sigue)
{
    const std::vector<QStringList> lineas = renglones(texto, separadorDe(texto));
    const auto donde = destinos(lineas.empty() ? QStringList() : lineas.front());
    const auto tiene = [&](int columna) { return std::ranges::find(donde, columna) != donde.end(); };
    if (!tiene(cCodigo) || !tiene(cDescripcion))
        throw basic::Error(dao::Error::ItemNotFound,
                           u"La primera línea del archivo tiene que nombrar las columnas, entre ellas "
                           u"Código y Descripción."_s);
    Importacion hecha;
    const qint64 total = std::ssize(lineas) - 1;
    dao::Batch juntas(base, dao::Batch::Long);
    dao::Recordset tabla = base.openRecordset(u"Prestaciones"_s, dao::Recordset::Kind::Table);
    tabla.setIndex(u"Codigo");
    for (std::size_t linea = 1; linea < lineas.size() && !hecha.detenida; ++linea) {
        const QStringList &campos = lineas[linea];
        if (campos.join(QString()).isEmpty())
            continue;
        Valores valores;
        for (qsizetype i = 0; i < qMin(campos.size(), std::ssize(donde)); ++i)
            if (const std::optional<int> columna = donde[static_cast<std::size_t>(i)])
                valores[static_cast<std::size_t>(*columna)] = campos[i];
        tabla.seek(u"=", valores[cCodigo].value_or(QString()));
        const bool nueva = tabla.noMatch();
        QString motivo = reparo(valores, nueva);
        if (motivo.isEmpty()) {
            try {
                escribe(tabla, valores, nueva);
                ++(nueva ? hecha.nuevas : hecha.cambiadas);
            } catch (const dao::Error &error) {
                if (std::ranges::find(dao::valueRefused, error.number()) == std::end(dao::valueRefused))
                    throw;
                tabla.cancelUpdate();
                motivo = error.description();
            }
        }
        if (!motivo.isEmpty())
            hecha.omitidas += u"Línea %1: %2"_s.arg(linea + 1).arg(motivo);
        hecha.detenida = sigue && !sigue(static_cast<qint64>(linea), total);
    }
    juntas.commit();
    return hecha;
}

} // namespace tarifas
