#include "paediatrics/perinatal/medidasAlNacer.h"

#include "core/services/opcionesPerinatales.h"
#include "paediatrics/perinatal/alNacer.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace perinatal
{

namespace
{

struct Medida {
    const char16_t *columna;
    MedidaAlNacer medida;
};

constexpr Medida medidas[] = {{u"Peso al Nacer", MedidaAlNacer::Peso},
                              {u"Talla al Nacer", MedidaAlNacer::Longitud},
                              {u"Perimetro cefalico al nacer", MedidaAlNacer::PerimetroCefalico}};
constexpr int anchoDeMedida = 90;

} // namespace

MedidasAlNacer::MedidasAlNacer(Campos &campos) : campos_(campos)
{
    for (int i = 0; i < static_cast<int>(std::size(medidas)); ++i)
        lugar_.add(i).setToolTip(u"Según "_s + fuenteAlNacer);
}

Item MedidasAlNacer::contenido()
{
    std::vector<FieldRow> filas;
    for (int i = 0; const Medida &medida : medidas) {
        const QString columna = QString::fromUtf16(medida.columna);
        TextBox &campo = campos_.texto(columna);
        campo.setFixedWidth(anchoDeMedida);
        filas.emplace_back(columna + u" :"_s, Row{campo, Expanding(lugar_(i++))});
    }
    return Fields(std::move(filas));
}

void MedidasAlNacer::setSexo(const QString &sexo)
{
    sexo_ = sexo;
    campos_.alCambiar([this] { decir(); });
    decir();
}

std::optional<int> MedidasAlNacer::diasDeGestacion(const Valores &valores) const
{
    const auto porExamen =
        perinatal::diasDeGestacion(valor(valores, u"Edad gestacional por examen fisico"_s).text());
    return porExamen ? porExamen
                     : perinatal::diasDeGestacion(valor(valores, u"Edad Gestacional madre"_s).text());
}

void MedidasAlNacer::decir()
{
    const Valores escritos = campos_.valores();
    const QString nacimiento = services::opcionPerinatal(u"Nacimiento", valor(escritos, u"Nacimiento"_s));
    const auto dias = nacimiento == u"Gemelar" ? std::nullopt : diasDeGestacion(escritos);
    for (int i = 0; const Medida &medida : medidas) {
        const basic::Value escrito = valor(escritos, QString::fromUtf16(medida.columna));
        const bool seDice = dias && escrito.isNumeric();
        lugar_(i++).setCaption(seDice ? enPalabras(medida.medida, sexo_, *dias, escrito.number())
                                      : QString());
    }
}

} // namespace perinatal
