// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/rowheads.h"

#include "planner/window/dayform.h"
#include "shell/controls/controls.h"
#include "shell/controls/taborder.h"
#include "shell/core/framelines.h"
#include "shell/core/settingskeys.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QLabel>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString wholeHead()
{
    return u"Appointment or activity"_s;
}

QString shortHead()
{
    return u"Appointment"_s;
}

QFont headFont()
{
    QFont head = TypeScale::label();
    head.setWeight(QFont::DemiBold);
    return head;
}

int headWidth(const QString &head)
{
    return QFontMetrics(headFont()).horizontalAdvance(head) + 2;
}

} // namespace

RowHeads::RowHeads(Program &program, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_placement(new QButtonGroup(this))
    , m_heads(makeHeads())
    , m_choice(makePlacement())
    , m_layout(new QBoxLayout(QBoxLayout::LeftToRight, this))
{
    setMaximumWidth(DayForm::greatestWidth);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(m_heads, 1);
    m_layout->addWidget(m_choice, 0, Qt::AlignRight);
}

QWidget *RowHeads::makeHeads()
{
    auto *line = new QWidget(this);
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(DayForm::gap);
    QLabel *time = makeQuietLabel(u"Time"_s, line);
    m_text = named(makeQuietLabel(wholeHead(), line), u"textHead"_s);
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_text->setMinimumWidth(headWidth(shortHead()));
    for (QLabel *head : {time, m_text})
        head->setFont(headFont());
    time->setFixedWidth(DayForm::timeBoxWidth());
    layout->addSpacing(DayForm::numberWidth() + DayForm::gap);
    layout->addWidget(time);
    layout->addWidget(m_text, 1);
    return line;
}

QWidget *RowHeads::makePlacement()
{
    auto *line = new QWidget(this);
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(DayForm::gap);
    QLabel *words = named(makeQuietLabel(u"Without AM/PM:"_s, line), u"placementHead"_s);
    words->setFont(TypeScale::label());
    layout->addWidget(words);
    for (const auto &[id, caption] :
         {std::pair{UntimedPlacement::Last, u"Last"_s}, {UntimedPlacement::First, u"First"_s}}) {
        auto *button = named(new QRadioButton(caption, line), u"Option7_"_s + QString::number(int(id)));
        button->setAccessibleName(u"Entries without AM/PM: "_s + caption);
        button->setToolTip(u"Where entries without AM or PM stand when the day is saved"_s);
        setUnavailable(button, m_program.folder.whyReadOnly());
        button->setFont(TypeScale::label());
        m_placement->addButton(button, int(id));
        layout->addWidget(button);
    }
    const int stored = m_program.settings.number(SettingsKeys::plannerPlacement);
    m_placement->button(stored == int(UntimedPlacement::First) ? 1 : 0)->setChecked(true);
    TabOrder::findTheChosen(*m_placement);
    connect(m_placement, &QButtonGroup::idClicked, this, &RowHeads::setPlacement);
    return line;
}

UntimedPlacement RowHeads::placement() const
{
    return UntimedPlacement(m_placement->checkedId());
}

void RowHeads::setPlacement(int placement)
{
    emit placementChosen();
    if (!m_program.settings.setNumber(SettingsKeys::plannerPlacement, placement))
        emit said(FrameLines::settingNotSaved());
}

void RowHeads::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const int heads = m_heads->minimumSizeHint().width();
    const int beside = heads + DayForm::gap + m_choice->sizeHint().width();
    const bool isInLine = width() >= beside;
    m_layout->setDirection(isInLine ? QBoxLayout::LeftToRight : QBoxLayout::BottomToTop);
    m_layout->setSpacing(isInLine ? DayForm::gap : 2);
    const int room = (isInLine ? width() - beside : width() - heads) + headWidth(shortHead());
    m_text->setText(room >= headWidth(wholeHead()) ? wholeHead() : shortHead());
}

QSize RowHeads::minimumSizeHint() const
{
    return {std::max(m_heads->minimumSizeHint().width(), m_choice->sizeHint().width()),
            QWidget::minimumSizeHint().height()};
}
