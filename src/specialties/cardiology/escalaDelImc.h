#pragma once

#include <QWidget>

#include <optional>
#include <utility>

/// The band above the slider of an index: "Escaso", "Normal" and "Excesivo", in the colours and at the places
/// of what is normal for the patient; without that the words alone.
class EscalaDelImc : public QWidget
{
    Q_OBJECT
public:
    static constexpr double hasta = 28;

    explicit EscalaDelImc(const QString &nombre);
    void setNormal(std::optional<std::pair<double, double>> normal);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *evento) override;

private:
    std::optional<std::pair<double, double>> normal_;
};
