// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/housestyle.h"

#include <QAbstractButton>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <QWidget>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double corner = 6;
constexpr int buttonHeight = 36;
constexpr int boxHeight = 34;
constexpr int buttonPadding = 15;
constexpr double leastRimContrast = 3;

bool isMain(const QWidget *widget)
{
    return widget && widget->property("main").toBool();
}

/// A rounded rectangle whose rim of `width` pixels lies wholly inside `rect`.
void drawRounded(QPainter &painter, const QRectF &rect, double radius, const QColor &fill, const QColor &rim,
                 double width)
{
    const double half = width / 2;
    painter.setBrush(fill);
    painter.setPen(QPen(rim, width));
    painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), radius - half, radius - half);
}

void drawTick(QPainter &painter, const QRectF &box, const QColor &color)
{
    QPainterPath tick(box.topLeft() + QPointF(box.width() * 0.22, box.height() * 0.52));
    tick.lineTo(box.topLeft() + QPointF(box.width() * 0.42, box.height() * 0.72));
    tick.lineTo(box.topLeft() + QPointF(box.width() * 0.78, box.height() * 0.30));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(tick);
}

/// Saves the painter's state for as long as it lives and turns smooth edges on.
class SmoothPainting
{
public:
    explicit SmoothPainting(QPainter &painter)
        : m_painter(painter)
    {
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
    }
    ~SmoothPainting() { m_painter.restore(); }
    SmoothPainting(const SmoothPainting &) = delete;
    SmoothPainting &operator=(const SmoothPainting &) = delete;

private:
    QPainter &m_painter;
};

} // namespace

HouseStyle::HouseStyle(const Theme &theme)
    : QProxyStyle(u"Fusion"_s)
    , m_theme(theme)
{}

/// Beneath a style sheet a widget takes no colours from a parent that was given its style before.
void HouseStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    const QWidget *parent = widget->parentWidget();
    if (parent && !widget->isWindow() && parent->testAttribute(Qt::WA_WState_Polished) &&
        !widget->testAttribute(Qt::WA_SetPalette) && widget->palette() != parent->palette())
        widget->setPalette({});
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    const SmoothPainting smooth(*painter);
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return drawCheckBox(*option, *painter);
    case PE_IndicatorRadioButton:
        return drawRadioButton(*option, *painter);
    case PE_IndicatorMenuCheckMark:
        return drawTick(*painter, option->rect, option->palette.color(QPalette::Text));
    case PE_FrameFocusRect:
        return drawFocus(*option, *painter, widget);
    default:
        painter->setRenderHint(QPainter::Antialiasing, false);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void HouseStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    if (element == CE_PushButtonBevel)
        return drawButton(*option, *painter, widget);
    if (element == CE_PushButton) { // without Fusion's own focus frame
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option)) {
            drawButton(*button, *painter, widget);
            QStyleOptionButton label = *button;
            label.rect = button->rect.adjusted(8, 0, -8, 0);
            return drawControl(CE_PushButtonLabel, &label, painter, widget);
        }
    }
    if (element == CE_PushButtonLabel && isMain(widget) && option->state & State_Enabled) {
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option)) {
            QStyleOptionButton label = *button;
            label.palette.setColor(QPalette::ButtonText, m_theme.onAccent);
            return QProxyStyle::drawControl(element, &label, painter, widget);
        }
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void HouseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                    QPainter *painter, const QWidget *widget) const
{
    if (const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
        control == CC_ComboBox && combo)
        return drawComboBox(*combo, *painter, widget);
    if (const auto *spin = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
        control == CC_SpinBox && spin)
        return drawSpinBox(*spin, *painter, widget);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect HouseStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                                 const QWidget *widget) const
{
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    const bool isText = (control == CC_ComboBox && part == SC_ComboBoxEditField) ||
                        (control == CC_SpinBox && part == SC_SpinBoxEditField);
    return isText ? rect.adjusted(5, 2, 0, -2) : rect;
}

QSize HouseStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                   const QWidget *widget) const
{
    const QSize fusion = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_PushButton: {
        const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
        // A button that has an icon alone is square.
        if (button && button->text.isEmpty() && !button->icon.isNull())
            return {buttonHeight, buttonHeight};
        return {size.width() + 2 * buttonPadding, std::max(buttonHeight, size.height() + 12)};
    }
    case CT_SpinBox:
    case CT_ComboBox:
        return {fusion.width() + 16, std::max(boxHeight, fusion.height())};
    case CT_CheckBox:
    case CT_RadioButton:
        return {fusion.width() + 4, std::max(28, fusion.height())};
    default:
        return fusion;
    }
}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_ButtonIconSize:
        return 20;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 18;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 8;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *returned) const
{
    switch (hint) {
    case SH_UnderlineShortcut: // on every platform: access keys are for everyone to see
        return 1;
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

void HouseStyle::drawButton(const QStyleOption &option, QPainter &painter, const QWidget *widget) const
{
    const SmoothPainting smooth(painter);
    const bool enabled = option.state & State_Enabled;
    const bool pressed = option.state & (State_Sunken | State_On);
    const bool hovered = option.state & State_MouseOver;
    const bool focused = enabled && option.state & State_HasFocus;
    const QRectF rect = option.rect;
    if (!enabled)
        return drawRounded(painter, rect, corner, m_theme.locked, m_theme.line, 1);
    if (!isMain(widget)) {
        const QColor fill = pressed ? m_theme.pressed() : hovered ? m_theme.soft : m_theme.field;
        return drawRounded(painter, rect, corner, fill, focused ? m_theme.accent : m_theme.edge,
                           focused ? 2 : 1);
    }
    const QColor fill = pressed   ? m_theme.accent.darker(120)
                        : hovered ? m_theme.accent.darker(108)
                                  : m_theme.accent;
    drawRounded(painter, rect, corner, fill, option.palette.color(ThemeRole::mainRim), 1);
    if (focused)
        drawRounded(painter, rect.adjusted(2, 2, -2, -2), corner - 1, Qt::transparent, m_theme.onAccent, 2);
}

/// On a panel in a colour of the user's the accent may hardly be seen: the ink can be.
void HouseStyle::drawFocus(const QStyleOption &option, QPainter &painter, const QWidget *widget) const
{
    QRectF rect = QRectF(option.rect).adjusted(-2, 0, 2, 0);
    QColor rim = m_theme.accent;
    if (qobject_cast<const QAbstractButton *>(widget)) {
        rect &= QRectF(widget->rect());
        if (contrast(rim, option.palette.color(QPalette::Window)) < leastRimContrast)
            rim = option.palette.color(ThemeRole::mainRim);
    }
    drawRounded(painter, rect, 4, Qt::transparent, rim, 2);
}

void HouseStyle::drawCheckBox(const QStyleOption &option, QPainter &painter) const
{
    const QRectF box = QRectF(option.rect);
    const bool enabled = option.state & State_Enabled;
    const bool checked = option.state & State_On;
    const QColor rim = enabled ? m_theme.edge : m_theme.line;
    const QColor fill = !enabled ? m_theme.locked : checked ? m_theme.accent : m_theme.field;
    drawRounded(painter, box, 4, fill, enabled && checked ? m_theme.accent : rim, 1);
    if (checked)
        drawTick(painter, box, enabled ? m_theme.onAccent : m_theme.disabledText);
}

void HouseStyle::drawRadioButton(const QStyleOption &option, QPainter &painter) const
{
    const QRectF box = QRectF(option.rect);
    const bool enabled = option.state & State_Enabled;
    const bool checked = option.state & State_On;
    const QColor dot = enabled ? m_theme.accent : m_theme.disabledText;
    drawRounded(painter, box, box.width() / 2, enabled ? m_theme.field : m_theme.locked,
                checked ? dot : (enabled ? m_theme.edge : m_theme.line), checked ? 2 : 1);
    if (!checked)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(dot);
    painter.drawEllipse(box.adjusted(5, 5, -5, -5));
}

/// The frame of a box that takes a choice or a number.
void HouseStyle::drawBox(const QStyleOption &option, QPainter &painter) const
{
    const bool enabled = option.state & State_Enabled;
    const bool focused = enabled && option.state & State_HasFocus;
    const QColor fill = !enabled ? m_theme.locked : focused ? m_theme.mark : m_theme.field;
    const QColor rim = !enabled ? m_theme.line : focused ? m_theme.accent : m_theme.edge;
    drawRounded(painter, option.rect, corner, fill, rim, focused ? 2 : 1);
    painter.setBrush(Qt::NoBrush);
}

void HouseStyle::drawSpinBox(const QStyleOptionSpinBox &option, QPainter &painter,
                             const QWidget *widget) const
{
    const SmoothPainting smooth(painter);
    const bool enabled = option.state & State_Enabled;
    drawBox(option, painter);
    for (const SubControl arrow : {SC_SpinBoxUp, SC_SpinBoxDown}) {
        const QPointF middle = QRectF(subControlRect(CC_SpinBox, &option, arrow, widget)).center();
        const double rise = arrow == SC_SpinBoxUp ? 1.5 : -1.5;
        painter.setPen(QPen(enabled ? m_theme.text : m_theme.disabledText, 1.6, Qt::SolidLine, Qt::RoundCap,
                            Qt::RoundJoin));
        painter.drawPolyline(
            QPolygonF{middle + QPointF(-3, rise), middle + QPointF(0, -rise), middle + QPointF(3, rise)});
    }
}

void HouseStyle::drawComboBox(const QStyleOptionComboBox &option, QPainter &painter,
                              const QWidget *widget) const
{
    const SmoothPainting smooth(painter);
    const bool enabled = option.state & State_Enabled;
    drawBox(option, painter);
    const QPointF middle = QRectF(subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget)).center();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(enabled ? m_theme.text : m_theme.disabledText, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(
        QPolygonF{middle + QPointF(-4, -2), middle + QPointF(0, 2), middle + QPointF(4, -2)});
}
