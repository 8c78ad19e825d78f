// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/duecard.h"

#include "cars/model/duewords.h"
#include "cars/model/lines.h"
#include "cars/window/signline.h"
#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <QPainter>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int corner = 10;
constexpr int padding = 12;
constexpr int flatPadding = 2;
constexpr int leastWhen = 40;
constexpr float overdueFill = 0.12F;
} // namespace

DueCard::DueCard(int number, QWidget *parent)
    : QWidget(parent)
    , m_rows(new QVBoxLayout(this))
    , m_name(new ElidedLabel(this))
    , m_when(new SignLine(this))
    , m_howFar(new ElidedLabel(this))
    , m_button(makeButton(u"done_"_s + QString::number(number), u"Done..."_s, this))
{
    setObjectName(u"dueCard_"_s + QString::number(number));
    m_howFar->setFont(TypeScale::body());
    m_howFar->setForegroundRole(ThemeRole::quiet);
    m_rows->addWidget(m_name, 1);
    m_rows->addWidget(m_when);
    auto *foot = new QHBoxLayout;
    foot->setSpacing(8);
    foot->addWidget(m_howFar, 1, Qt::AlignVCenter);
    foot->addWidget(m_button);
    m_rows->addLayout(foot);
    setFlat(false);
    connect(m_button, &QPushButton::clicked, this, &DueCard::clicked);
}

void DueCard::setFlat(bool isFlat)
{
    m_rows->setDirection(isFlat ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    const int above = isFlat ? flatPadding : padding;
    m_rows->setContentsMargins(padding + 2, above, above, above);
    m_rows->setSpacing(isFlat ? padding : 4);
    m_name->setFont(isFlat ? TypeScale::strong() : TypeScale::cardTitle());
    m_howFar->setVisible(!isFlat);
}

int DueCard::whenWidth() const
{
    return m_when->sizeHint().width();
}

void DueCard::setWhenWidth(int width)
{
    m_when->setMinimumWidth(std::max(width, leastWhen));
}

int DueCard::leastWidth()
{
    return TypeScale::wide(240);
}

int DueCard::narrowWidth()
{
    return TypeScale::wide(220);
}

void DueCard::show(const CarNeed &need, const Words &words)
{
    m_need = need;
    const QString name = DueWords::name(need);
    m_name->setText(name);
    m_when->setWords(need.state, DueWords::when(need, words.unit, words.style, words.today));
    m_howFar->setText(need.isReadingOld ? CarLines::lookAtOdometer() : DueWords::howFar(need, words.unit));
    // In a line, how far it is stands here alone.
    const QString advice = DueWords::advice(need, words.unit);
    setToolTip(advice.isEmpty() ? m_howFar->text() : advice);
    m_name->setToolTip(m_howFar->text().isEmpty() ? QString() : name + u'\n' + m_howFar->text());
    const bool isAction = need.kind == CarNeed::Kind::Action;
    m_button->setText(isAction ? u"Done..."_s : u"Renewed..."_s);
    m_button->setAccessibleName(name + u": "_s + m_button->text().chopped(3));
    update();
}

void DueCard::paintEvent(QPaintEvent *)
{
    const Theme &theme = Theme::of(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool hasUserColor = SignLine::isOnUserColor(*this);
    const bool isOverdue = m_need.state == CarNeed::State::Overdue;
    QColor rim = palette().color(ThemeRole::line);
    if (!hasUserColor) {
        painter.setBrush(theme.field);
        if (m_need.isUrgent())
            rim = isOverdue ? theme.negative : theme.due;
    }
    painter.setPen(QPen(rim, 1));
    const QRectF card = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(card, corner, corner);
    if (isOverdue && !hasUserColor) {
        QColor fill = theme.negative;
        fill.setAlphaF(overdueFill);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawRoundedRect(card, corner, corner);
    }
}
