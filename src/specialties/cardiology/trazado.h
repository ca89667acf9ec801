#pragma once

#include <QImage>
#include <QWidget>

/// The picture of a tracing, as large as there is room for. A file that is missing or no picture leaves it
/// empty.
class Trazado : public QWidget
{
    Q_OBJECT
public:
    explicit Trazado(const QString &nombre);

    void mostrar(const QString &archivo);

protected:
    void paintEvent(QPaintEvent *evento) override;

private:
    void leer();

    QString archivo_;
    QSize lugar_; ///< in dots, for which it was read
    QImage imagen_;
};
