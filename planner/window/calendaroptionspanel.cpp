// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/calendaroptionspanel.h"

#include "shell/controls/taborder.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;

CalendarOptionsPanel::CalendarOptionsPanel(QWidget *parent)
    : TaskPanel(u"calendarOptionsPanel"_s, u"Calendar Options"_s, parent)
{
    auto *content = new QWidget(this);
    auto *columns = new QHBoxLayout(content);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(48);
    auto *left = new QVBoxLayout;
    auto *right = new QVBoxLayout;
    // Layouts within a layout would take its spacing over.
    left->setSpacing(4);
    right->setSpacing(4);
    m_months = addFrame(left, u"months"_s, u"Number of Months to Display"_s,
                        {u"One Month (1)"_s, u"Two Months (2)"_s});
    m_weekNumbers = addFrame(left, u"weekNumbers"_s, u"Display the Week Numbers"_s,
                             {u"Yes (Display)"_s, u"No (Don't Display)"_s});
    m_today =
        addFrame(left, u"today"_s, u"Display Today's Date"_s, {u"Yes (Display)"_s, u"No (Don't Display)"_s});
    m_weekStart = addFrame(
        right, u"weekStart"_s, u"Start Week With"_s,
        {u"Sunday"_s, u"Monday"_s, u"Tuesday"_s, u"Wednesday"_s, u"Thursday"_s, u"Friday"_s, u"Saturday"_s});
    for (QVBoxLayout *column : {left, right}) {
        column->addStretch(1);
        columns->addLayout(column);
    }
    columns->addStretch(1);
    setContent(content);
    QPushButton *ok = addButton(u"calendarOptionsOk"_s, u"OK"_s, ButtonKind::Main);
    ok->setMinimumWidth(88);
    m_cancel = setLeaveButton(u"calendarOptionsCancel"_s, u"Cancel"_s);
    connect(ok, &QPushButton::clicked, this, &CalendarOptionsPanel::accepted);
}

QButtonGroup *CalendarOptionsPanel::addFrame(QVBoxLayout *column, const QString &name, const QString &caption,
                                             const QStringList &choices)
{
    auto *group = new QButtonGroup(this);
    column->addWidget(makeHeading(caption, this));
    for (qsizetype i = 0; i < choices.size(); ++i) {
        auto *button = named(new QRadioButton(choices[i], this), name + u'_' + QString::number(i));
        button->setAccessibleName(caption + u": "_s + choices[i]);
        group->addButton(button, int(i));
        column->addWidget(button);
    }
    column->addSpacing(12);
    TabOrder::findTheChosen(*group);
    return group;
}

void CalendarOptionsPanel::setOptions(const CalendarOptions &options)
{
    m_months->button(options.months)->setChecked(true);
    m_weekNumbers->button(options.weekNumbers)->setChecked(true);
    m_weekStart->button(options.weekStart - 1)->setChecked(true);
    m_today->button(options.today)->setChecked(true);
    setFocusProxy(m_months->checkedButton());
}

CalendarOptions CalendarOptionsPanel::options() const
{
    return {m_months->checkedId(), m_weekNumbers->checkedId(), m_weekStart->checkedId() + 1,
            m_today->checkedId()};
}

void CalendarOptionsPanel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        TaskPanel::keyPressEvent(event);
    else if (m_cancel->hasFocus())
        leave();
    else
        emit accepted();
}
