#pragma once

#include <QProxyStyle>

namespace forms
{

/// The toolkit's plain style with room to breathe in fields and lists.
class Style : public QProxyStyle
{
public:
    Style();
    using QProxyStyle::polish;
    void polish(QWidget *widget) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;

private:
    bool eventFilter(QObject *receiver, QEvent *event) override;
};

} // namespace forms
