// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/look/theme.h"

#include <QProxyStyle>

class QStyleOptionComboBox;
class QStyleOptionSpinBox;

/// Fusion with the program's own buttons, check marks, choice and number boxes: what a style sheet cannot
/// draw in the ink of a coloured panel. Buttons with the property "main" are drawn in the accent.
class HouseStyle final : public QProxyStyle
{
    Q_OBJECT
public:
    explicit HouseStyle(const Theme &theme);

    /// Hands the colours of a panel on to what is put onto it when it is shown already.
    void polish(QWidget *widget) override;
    using QProxyStyle::polish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override;

private:
    void drawButton(const QStyleOption &option, QPainter &painter, const QWidget *widget) const;
    void drawFocus(const QStyleOption &option, QPainter &painter, const QWidget *widget) const;
    void drawCheckBox(const QStyleOption &option, QPainter &painter) const;
    void drawRadioButton(const QStyleOption &option, QPainter &painter) const;
    void drawBox(const QStyleOption &option, QPainter &painter) const;
    void drawSpinBox(const QStyleOptionSpinBox &option, QPainter &painter, const QWidget *widget) const;
    void drawComboBox(const QStyleOptionComboBox &option, QPainter &painter, const QWidget *widget) const;

    const Theme &m_theme;
};
