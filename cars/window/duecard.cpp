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
constexpr float overdueFill = 0.12F;
} // namespace

DueCard::DueCard(int number, QWidget *parent)
    : QWidget(parent)
    , m_name(new ElidedLabel(this))
    , m_when(new SignLine(this))
    , m_howFar(new ElidedLabel(this))
    , m_button(makeButton(u"done_"_s + QString::number(number), u"Done..."_s, this))
{
    setObjectName(u"dueCard_"_s + QString::number(number));
    m_name->setFont(TypeScale::cardTitle());
    m_howFar->setFont(TypeScale::body());
    m_howFar->setForegroundRole(ThemeRole::quiet);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(padding + 2, padding, padding, padding);
    rows->setSpacing(4);
    rows->addWidget(m_name);
    rows->addWidget(m_when);
    auto *foot = new QHBoxLayout;
    foot->setSpacing(8);
    foot->addWidget(m_howFar, 1, Qt::AlignVCenter);
    foot->addWidget(m_button);
    rows->addLayout(foot);
    connect(m_button, &QPushButton::clicked, this, &DueCard::clicked);
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
    setToolTip(DueWords::advice(need, words.unit));
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
