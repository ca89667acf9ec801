#include "figures/panEstadisticas.h"

#include "core/session/screens.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panEstadisticas::panEstadisticas() : Form(u"panEstadisticas"_s)
{
    setWindowTitle(u"Estadísticas de Torvendo! Pediátrico"_s);
    Label1.setCaption(
        u"En esta sección del programa, encontrará resultados y análisis obtenidos de la información que ud.ha obtenido de los pacientes y arrojado al sistema. Seleccione entre varias posibilidades estadísticas :"_s);
    Label1.setWordWrap(true);
    setContents(this, Column{Label1, Command5, Command4, Command3, Command2, Command1});
    setMinimumWidth(460);
    for (const auto &[boton, ventana, tag] :
         {std::tuple{&Command5, screens::Window("panEstadTurnos"), QString()},
          std::tuple{&Command4, screens::Window("panEstDeta"), QString()},
          std::tuple{&Command3, screens::Window("panMuesCurvas"), u"VARON"_s},
          std::tuple{&Command2, screens::Window("panPrevalencias"), QString()},
          std::tuple{&Command1, screens::Window("panGraficos"), QString()}})
        connect(boton, &QPushButton::clicked, this,
                [ventana = ventana, tag = tag] { screens::showModal(ventana, tag); });
}

#include "moc_panEstadisticas.cpp"
