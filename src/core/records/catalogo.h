#pragma once

#include "core/session/eleccion.h"
#include "platform/dao/recordset.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"

namespace records
{

using ports::Renglon;

/// A catalogue that is kept and chosen from in one window: the list of its rows and the fields of the chosen
/// one. A row is known by its name: saving under an existing name changes that row, under another name it
/// makes a second one. What records have taken over from a row stays theirs.
class Catalogo : public forms::Form
{
    Q_OBJECT
public:
    struct Campo {
        QString columna;
        int largo = 0; ///< of a text; 0 for a memo
    };
    struct Tabla {
        QString nombre, id, preguntaDeBaja;
        std::vector<Campo> campos;                      ///< of mDato(0), mDato(1)...; the first is the name
        QString indice = QStringLiteral("Descripcion"); ///< over the name: the order of the list
    };

    /// The chosen rows of the list, first to last.
    std::vector<Renglon> elegidos() const;

protected:
    Catalogo(const QString &ventana, Tabla tabla);

    void activate() override;
    /// Once, before the list is first filled.
    virtual void preparar() {}
    void keyPressEvent(QKeyEvent *event) override;

    /// What the window answers when it is closed without accepting.
    virtual QString respuestaAlCerrar() const { return {}; }
    bool queryUnload() override;

    /// Adds rows to the list, in its order.
    virtual void listar(dao::Recordset &filas) = 0;
    void agregarALaLista(dao::Recordset &fila);
    /// Puts the row into the fields, or blanks them without one.
    virtual void mostrar(dao::Recordset *fila);
    virtual void escribir(dao::Recordset &fila);
    /// "&Nuevo...".
    virtual void nuevo() = 0;
    /// After a row has been deleted.
    virtual void trasBorrar();

    dao::Recordset abrir() const;
    /// Fills the list anew. What was chosen and is still there stays so, and so do the fields, unless nothing
    /// of it is left.
    void llenar();
    void elegirFila(qint64 id); ///< the row with this key, besides what is chosen where several may be
    void aceptar();
    virtual void guardar(); ///< "&Guardar"
    QString nombre() const { return mDato(0).text().trimmed(); }
    forms::Item botones(forms::Item otros);

    forms::ListBox List1{QStringLiteral("List1")};
    forms::ControlArray<forms::TextBox> mDato{QStringLiteral("mDato")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Nuevo..."),
                                  QStringLiteral("agregar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Quitar"),
                                  QStringLiteral("quitar")};
    forms::CommandButton Command6{QStringLiteral("Command6"), QStringLiteral("&Guardar"),
                                  QStringLiteral("guardar")};

private:
    void elegir();
    void quitar();
    dao::Recordset buscarFila() const;
    int filaDe(qint64 id) const;

    Tabla tabla_;
    bool cargado_ = false;
};

} // namespace records
