// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/secretface.h"

#include "keeper/model/spokensecret.h"
#include "shell/look/theme.h"
#include "shell/pages/fixedface.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int inset = 12;
constexpr int corner = 6;
constexpr double largePoints = 22;

const QFont &faceFont(bool isBold)
{
    static const QFont plain = [] {
        QFont font = FixedFace::font();
        font.setPointSizeF(std::max(largePoints, 2 * TypeScale::body().pointSizeF()));
        return font;
    }();
    static const QFont bold = [] {
        QFont font = plain;
        font.setWeight(QFont::Bold);
        return font;
    }();
    return isBold ? bold : plain;
}

QColor inkOf(SpokenSecret::Class kind, const Theme &theme)
{
    switch (kind) {
    case SpokenSecret::Class::Letter:
        return theme.text;
    case SpokenSecret::Class::Digit:
        return theme.accent;
    case SpokenSecret::Class::Sign:
        return theme.due;
    }
    Q_UNREACHABLE();
}

/// A blank is seen as well.
QString shownAs(uint character)
{
    const char32_t shown = character == U' ' ? U'\u2423' : char32_t(character);
    return QString::fromUcs4(&shown, 1);
}

} // namespace

SecretFace::SecretFace(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::TabFocus);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void SecretFace::setSecret(const QString &secret)
{
    std::ranges::fill(m_characters, 0);
    m_characters = secret.toUcs4();
    m_current = std::clamp(m_current, 0, std::max(0, int(m_characters.size()) - 1));
    nameWhole();
    updateGeometry();
    update();
}

/// Nothing of the secret stands in the name until it is asked for.
void SecretFace::nameWhole()
{
    setAccessibleName(m_characters.isEmpty() ? u"Nothing to show"_s
                                             : u"Shown, read it with the arrow keys"_s);
}

void SecretFace::setCaret(int place)
{
    m_caret = place;
    update();
}

QSize SecretFace::cell() const
{
    const QFontMetrics metrics(faceFont(true));
    return {metrics.horizontalAdvance(u'W') + 4, metrics.height() + 6};
}

int SecretFace::cellsAcross(int width) const
{
    return std::max(1, (width - 2 * inset) / cell().width());
}

int SecretFace::heightForWidth(int width) const
{
    return int(rowStarts(cellsAcross(width)).size()) * cell().height() + inset;
}

QList<int> SecretFace::rowStarts(int across) const
{
    const int count = int(m_characters.size()) + (m_caret >= 0 ? 1 : 0);
    const auto endsGroup = [this](int place) {
        return place < m_characters.size() && (m_characters[place] == U'-' || m_characters[place] == U' ');
    };
    QList<int> starts{0};
    while (count - starts.last() > across) {
        const int full = starts.last() + across;
        int next = full;
        while (next > full - across / 2 && !endsGroup(next - 1))
            --next;
        starts.append(next > full - across / 2 ? next : full);
    }
    return starts;
}

int SecretFace::placeInRow(int rowsDown) const
{
    const QList<int> starts = rowStarts(cellsAcross(width()));
    const auto row = std::ranges::upper_bound(starts, m_current) - starts.begin() - 1;
    const auto wanted = row + rowsDown;
    return wanted >= 0 && wanted < starts.size() ? m_current - starts[row] + starts[wanted] : m_current;
}

QSize SecretFace::sizeHint() const
{
    const int width = 16 * cell().width() + 2 * inset;
    return {width, heightForWidth(width)};
}

QSize SecretFace::minimumSizeHint() const
{
    return {4 * cell().width() + 2 * inset, cell().height() + inset};
}

QRect SecretFace::cellAt(int place) const
{
    const QList<int> starts = rowStarts(cellsAcross(width()));
    const auto row = std::ranges::upper_bound(starts, place) - starts.begin() - 1;
    const int column = place - starts[row];
    return {QPoint(inset + column * cell().width(), inset / 2 + int(row) * cell().height()), cell()};
}

void SecretFace::paintEvent(QPaintEvent *)
{
    const Theme &theme = Theme::of(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(hasFocus() ? theme.accent : theme.line, hasFocus() ? 2 : 1));
    painter.setBrush(theme.field);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), corner, corner);
    for (int i = 0; i < m_characters.size(); ++i) {
        const auto kind = SpokenSecret::classOf(char32_t(m_characters[i]));
        const QRect place = cellAt(i);
        if (hasFocus() && i == m_current)
            painter.fillRect(place, theme.mark);
        painter.setPen(inkOf(kind, theme));
        painter.setFont(faceFont(kind != SpokenSecret::Class::Letter));
        painter.drawText(place, Qt::AlignCenter, shownAs(m_characters[i]));
    }
    if (m_caret >= 0) {
        const QRect place = cellAt(m_caret);
        painter.fillRect(QRect(place.left() - 1, place.top() + 3, 2, place.height() - 6), theme.accent);
    }
}

void SecretFace::keyPressEvent(QKeyEvent *event)
{
    const int last = int(m_characters.size()) - 1;
    int next = m_current;
    switch (event->key()) {
    case Qt::Key_Right:
        ++next;
        break;
    case Qt::Key_Left:
        --next;
        break;
    case Qt::Key_Down:
        next = placeInRow(1);
        break;
    case Qt::Key_Up:
        next = placeInRow(-1);
        break;
    case Qt::Key_Home:
        next = 0;
        break;
    case Qt::Key_End:
        next = last;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    if (last < 0)
        return;
    m_current = std::clamp(next, 0, last);
    readOut();
    update();
}

void SecretFace::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    readOut();
    update();
}

void SecretFace::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    nameWhole();
    update();
}

/// A screen reader says what the control that has the focus is called now.
void SecretFace::readOut()
{
    if (m_characters.isEmpty())
        return;
    setAccessibleName(u"%1, %2 of %3"_s.arg(SpokenSecret::nameOf(char32_t(m_characters[m_current])))
                          .arg(m_current + 1)
                          .arg(m_characters.size()));
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
}
