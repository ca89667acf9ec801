#pragma once

#include "platform/forms/controls.h"

#include <QFrame>

#include <vector>

namespace odonto
{

/// A small window over the chart, dragged by its title.
class Flotante : public QFrame
{
    Q_OBJECT
public:
    Flotante(const QString &titulo, const QString &rotulo); ///< the title is a label of that name
    bool movida() const { return movida_; }                 ///< by the person

signals:
    void mostrada();

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    forms::Label titulo_;

private:
    QPoint asida_;
    bool movida_ = false;
};

/// The room of the chart: what is worked on, and beside it the small windows, until they are dragged over it.
class Mesa : public QWidget
{
    Q_OBJECT
public:
    explicit Mesa(QWidget &centro);
    ~Mesa() override;
    void agregar(Flotante &ventana);
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void acomodar();
    QWidget &centro_;
    std::vector<Flotante *> ventanas_;
};

} // namespace odonto
