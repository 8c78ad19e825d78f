// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/noteline.h"

#include "shell/look/theme.h"

#include <QTimer>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int signSize = 16;
constexpr int signGap = 6;

} // namespace

NoteLine::NoteLine(const HouseholdNotes &notes, QWidget *parent)
    : QAbstractButton(parent)
    , m_source(notes)
{
    setObjectName(u"dayNotes"_s);
    setFont(TypeScale::label());
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::clicked, this,
            [this] { m_source.open(m_notes, mapToGlobal(rect().bottomLeft()), this); });
    hide();
}

void NoteLine::setDate(QDate date)
{
    m_date = date;
    if (std::exchange(m_isLoading, true))
        return;
    QTimer::singleShot(0, this, &NoteLine::load);
}

void NoteLine::load()
{
    m_isLoading = false;
    m_notes = m_source.occasions(m_date, m_date);
    setText(HouseholdNotes::joined(m_notes));
    setToolTip(text());
    setAccessibleName(text());
    setVisible(!m_notes.isEmpty());
    updateGeometry();
    emit filled(!m_notes.isEmpty());
}

QSize NoteLine::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {signSize + signGap + metrics.horizontalAdvance(text()) + 4, metrics.height() + 2};
}

QSize NoteLine::minimumSizeHint() const
{
    return {signSize + signGap + fontMetrics().horizontalAdvance(u"..."_s), sizeHint().height()};
}

void NoteLine::paint(QPainter &painter, const QRect &place, const QList<HouseholdNote> &notes)
{
    const Theme &theme = Theme::of(static_cast<QWidget *>(nullptr));
    const Icons::Scheme scheme = theme.scheme;
    const NoteKind kind = notes.isEmpty() ? NoteKind::Other : notes.first().note.kind;
    if (kind == NoteKind::Due || kind == NoteKind::Overdue)
        painter.setPen(kind == NoteKind::Due ? theme.due : theme.negative);
    const QRect sign(place.left(), place.center().y() - signSize / 2 + 1, signSize, signSize);
    Icons::tinted(HouseholdNotes::sign(notes), scheme, painter.pen().color()).paint(&painter, sign);
    const QRect words = place.adjusted(signSize + signGap, 0, 0, 0);
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                     HouseholdNotes::cut(notes, painter.fontMetrics(), words.width()));
}

void NoteLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QFont shown = font();
    shown.setUnderline(underMouse() || hasFocus());
    painter.setFont(shown);
    painter.setPen(palette().color(underMouse() || hasFocus() ? ThemeRole::strong : ThemeRole::quiet));
    paint(painter, rect(), m_notes);
}
