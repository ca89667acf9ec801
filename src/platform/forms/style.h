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
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;
};

} // namespace forms
