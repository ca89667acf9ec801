#pragma once

#include "platform/forms/form.h"
#include "specialties/gynaecology/marcas.h"

#include <optional>

namespace gineco
{

/// The texts of an examination.
struct Examen {
    QString detalle, resultados, observaciones;
};

} // namespace gineco

/// "Examen Ginecologico": the texts of an examination. Answers "SI" or "NO".
class panExaGineco : public forms::Form
{
    Q_OBJECT
public:
    panExaGineco();

    void mostrar(const gineco::Examen &examen);
    gineco::Examen examen() const;
    /// What is drawn; nothing where the examination has no drawing.
    virtual void mostrarMarcas(const std::vector<gineco::Marca> &) {}
    virtual std::optional<std::vector<gineco::Marca>> marcas() const { return std::nullopt; }

protected:
    panExaGineco(const QString &ventana, const QString &titulo);
    /// The texts, beside a drawing if there is one.
    void disponer(std::optional<forms::Item> dibujo);

    void escape() override { answer(QStringLiteral("NO")); }

private:
    forms::Item textos();

    forms::ControlArray<forms::MemoBox> Text1{QStringLiteral("Text1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};

namespace gineco
{

/// The same with a diagram on which the symbols of a palette are dropped. A click takes one away.
class ExamenDibujado : public panExaGineco
{
    Q_OBJECT
public:
    void mostrarMarcas(const std::vector<Marca> &marcas) override;
    std::optional<std::vector<Marca>> marcas() const override;

protected:
    ExamenDibujado(const QString &ventana, const QString &titulo, const dibujo::Plano &plano);

private:
    void imprimir();

    dibujo::Diagrama Picture1;
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
};

} // namespace gineco

/// "Examen colposcopico": the neck of the womb.
class panExaColpo : public gineco::ExamenDibujado
{
    Q_OBJECT
public:
    panExaColpo();
};

class panExaMamas : public gineco::ExamenDibujado
{
    Q_OBJECT
public:
    panExaMamas();
};
