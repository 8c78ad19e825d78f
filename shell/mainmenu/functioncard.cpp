// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/functioncard.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/cardground.h"
#include "shell/program/functionfaces.h"

#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int corner = CardGround::corner;
constexpr int padding = 16;
constexpr int markSide = 20;
constexpr int markGap = 4;
constexpr qreal disabledIcon = 0.55;
constexpr int ringWidth = 3;

/// Where icon and title stand: narrower cards are set closer, so that long titles find room.
struct Setting {
    int padding;
    int icon;
    int gap;

    static Setting of(int cardWidth) { return cardWidth >= 236 ? Setting{16, 48, 12} : Setting{14, 40, 10}; }
};

/// `share` of `other` in `color`.
QColor mixed(const QColor &color, const QColor &other, double share)
{
    const auto part = [share](int one, int two) { return int(std::lround(one + (two - one) * share)); };
    return {part(color.red(), other.red()), part(color.green(), other.green()),
            part(color.blue(), other.blue())};
}

} // namespace

FunctionCard::FunctionCard(const FunctionFace &face, QWidget *parent)
    : WalkButton(parent)
    , m_quietText(face.quietText())
    , m_icon(face.icon)
    , m_titleFont(TypeScale::cardTitle())
{
    named(this, face.cardName());
    setText(face.titleText());
    setAccessibleName(face.titleText());
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setPalette(Theme::of(this).panelPalette());
    tellLine();
}

void FunctionCard::setLine(const std::optional<LiveLine> &line)
{
    if (line == m_line)
        return;
    m_line = line;
    tellLine();
    update();
}

void FunctionCard::setMissingReason(const QString &reason)
{
    m_missingReason = reason;
    setEnabled(reason.isEmpty());
    setCursor(isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setStatusTip(reason);
    tellLine();
}

void FunctionCard::setTitleFont(const QFont &font)
{
    m_titleFont = font;
    update();
}

int FunctionCard::titleRoom(int width)
{
    const Setting setting = Setting::of(width);
    return width - 2 * setting.padding - setting.icon - setting.gap;
}

int FunctionCard::fullHeight()
{
    return padding + 48 + 9 + QFontMetrics(TypeScale::body()).height() + padding + 2 * margin;
}

QSize FunctionCard::sizeHint() const
{
    return {216 + 2 * margin, fullHeight()};
}

QString FunctionCard::lineText() const
{
    if (!m_missingReason.isEmpty())
        return u"Not yet"_s;
    return m_line ? m_line->text : m_quietText;
}

/// The line in `width` pixels: a shorter form of it stands in, or a name in it gives way first.
QString FunctionCard::cutLine(const QFontMetrics &metrics, int width) const
{
    QString line = lineText();
    const QStringList shorter = m_missingReason.isEmpty() && m_line ? m_line->shorter : QStringList();
    for (const QString &form : shorter) {
        if (metrics.horizontalAdvance(line) > width)
            line = form;
    }
    const int missing = metrics.horizontalAdvance(line) - width;
    const QString name = m_line ? m_line->text.mid(m_line->nameAt, m_line->nameLength) : QString();
    if (missing > 0 && !name.isEmpty() && line.mid(m_line->nameAt, name.size()) == name) {
        const int room = std::max(0, metrics.horizontalAdvance(name) - missing);
        line.replace(m_line->nameAt, m_line->nameLength, metrics.elidedText(name, Qt::ElideRight, room));
    }
    return metrics.elidedText(line, Qt::ElideRight, width);
}

/// Tool tip and accessible description follow the line: the whole of it when it is cut.
void FunctionCard::tellLine()
{
    if (!m_missingReason.isEmpty()) {
        setToolTip(m_missingReason);
        setAccessibleDescription(m_missingReason);
        return;
    }
    const QRect place = lineRect();
    const int room = place.width() - (m_line && m_line->urgency != LiveLine::Plain ? markSide + markGap : 0);
    const bool cut = QFontMetrics(lineFont()).horizontalAdvance(lineText()) > room;
    setToolTip(cut ? lineText() : QString());
    setAccessibleDescription(lineText());
}

QFont FunctionCard::lineFont() const
{
    QFont font = TypeScale::body();
    if (m_line && m_line->urgency != LiveLine::Plain)
        font.setWeight(QFont::DemiBold);
    return font;
}

QRect FunctionCard::lineRect() const
{
    const int height = QFontMetrics(TypeScale::body()).height();
    const int side = margin + Setting::of(width() - 2 * margin).padding;
    return {side, this->height() - margin - padding - height, width() - 2 * side, height};
}

void FunctionCard::resizeEvent(QResizeEvent *event)
{
    WalkButton::resizeEvent(event);
    tellLine();
}

void FunctionCard::keyPressEvent(QKeyEvent *event)
{
    const QScopedValueRollback byKey(m_isPressedByKey, true);
    WalkButton::keyPressEvent(event);
}

void FunctionCard::keyReleaseEvent(QKeyEvent *event)
{
    const QScopedValueRollback byKey(m_isPressedByKey, true);
    WalkButton::keyReleaseEvent(event);
}

void FunctionCard::focusInEvent(QFocusEvent *event)
{
    WalkButton::focusInEvent(event);
    emit focused();
}

bool FunctionCard::hasUserColor() const
{
    return palette().color(QPalette::Window) != Theme::of(this).panel;
}

QColor FunctionCard::fill() const
{
    const Theme &theme = Theme::of(this);
    QColor color = palette().color(QPalette::Window);
    if (hasUserColor()) {
        // The ink must stay readable on it: no soft fill, only a touch nearer to the ink.
        if (isEnabled() && (isDown() || underMouse()))
            color = mixed(color, palette().color(QPalette::WindowText), isDown() ? 0.16 : 0.08);
    } else if (!isEnabled()) {
        color = theme.locked;
    } else if (isDown()) {
        color = theme.pressed();
    } else if (underMouse()) {
        color = theme.soft;
    }
    if (!hasUserColor()) // what shows through would take the contrast of a chosen colour's ink
        color.setAlphaF(CardGround::opacity);
    return color;
}

/// Of a disabled card it is quiet, and not the ink of disabled controls, which is too faint over a picture.
QColor FunctionCard::titleInk() const
{
    const QColor ink = palette().color(QPalette::WindowText);
    if (isEnabled())
        return ink;
    return hasUserColor() ? quietOn(palette().color(QPalette::Window), ink) : Theme::of(this).quiet;
}

QColor FunctionCard::lineInk(LiveLine::Urgency urgency) const
{
    const Theme &theme = Theme::of(this);
    if (!isEnabled() || hasUserColor())
        return titleInk();
    if (urgency == LiveLine::Plain)
        return theme.quiet;
    return urgency == LiveLine::Overdue ? theme.negative : theme.due;
}

void FunctionCard::paintLine(QPainter &painter, const QRect &place) const
{
    const Theme &theme = Theme::of(this);
    const LiveLine::Urgency urgency = m_line ? m_line->urgency : LiveLine::Plain;
    QRect text = place;
    if (urgency != LiveLine::Plain) {
        const auto mark = urgency == LiveLine::Overdue ? "overdue"_L1 : "due"_L1;
        painter.drawPixmap(text.left(), text.center().y() - markSide / 2 + 1,
                           Icons::pixmap(mark, theme.scheme, markSide, devicePixelRatioF()));
        text.setLeft(text.left() + markSide + markGap);
    }
    const QFont font = lineFont();
    painter.setFont(font);
    painter.setPen(lineInk(urgency));
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     cutLine(QFontMetrics(font), text.width()));
}

void FunctionCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect card = rect().adjusted(margin, margin, -margin, -margin);
    painter.drawPixmap(0, 0, CardGround::of(*this, fill()));
    if (hasFocus()) {
        painter.setPen(QPen(Theme::of(this).accent, ringWidth));
        painter.drawRoundedRect(QRectF(card).adjusted(-1.5, -1.5, 1.5, 1.5), corner + 1.5, corner + 1.5);
    }

    const auto [inset, side, gap] = Setting::of(card.width());
    const QRect line = lineRect();
    const int middle = card.top() + (line.top() - card.top() + 8) / 2;
    const QPoint icon(card.left() + inset, middle - side / 2);
    painter.setOpacity(isEnabled() ? 1 : disabledIcon);
    painter.drawPixmap(icon, Icons::pixmap(m_icon, Theme::of(this).scheme, side, devicePixelRatioF()));
    painter.setOpacity(1);

    painter.setFont(m_titleFont);
    painter.setPen(titleInk());
    const QRect title(icon.x() + side + gap, card.top(), titleRoom(card.width()), 2 * (middle - card.top()));
    painter.drawText(title, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     QFontMetrics(m_titleFont).elidedText(text(), Qt::ElideRight, title.width()));
    paintLine(painter, line);
}
