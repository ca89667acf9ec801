#pragma once

#include "platform/forms/form.h"
#include "specialties/eye/lienzo.h"

/// The observations of an eye drawing. Answers "SI" or "NO".
class pantextoojo : public forms::Form
{
    Q_OBJECT
public:
    explicit pantextoojo(const QString &texto = {});
    QString texto() const { return Text1.toPlainText(); }

private:
    forms::MemoBox Text1{QStringLiteral("Text1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};

namespace oftalmo
{

/// A drawing of an eye visit being made: stamps and texts are dropped on it, moved, and taken away by a
/// double click or the Del key. Answers "SI" or "NO".
class DibujoEditable : public forms::Form
{
    Q_OBJECT
public:
    void mostrar(const Dibujo &dibujo);
    Dibujo dibujo() const;

protected:
    DibujoEditable(const QString &ventana, const QString &titulo, Clase clase);
    bool queryUnload() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void ponerSello(int simbolo, QPointF lugar);
    void ponerTexto(QPointF lugar);
    void observar();

    Dibujo antes_;
    QString observaciones_;
    Lienzo Picture1;
    forms::Label lblObservaciones{QStringLiteral("lblObservaciones")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Observaciones..."),
                                  QStringLiteral("editar")};
};

} // namespace oftalmo

/// What the slit lamp shows.
class pangraBio : public oftalmo::DibujoEditable
{
    Q_OBJECT
public:
    pangraBio();
};

/// The fundus.
class panGraFondo : public oftalmo::DibujoEditable
{
    Q_OBJECT
public:
    panGraFondo();
};
