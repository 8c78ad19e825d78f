// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/dayspan.h"

#include "shell/controls/datepicker.h"

#include <QHBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

DaySpan::DaySpan(const QString &name, const DateReading &reading, const Settings &settings, QWidget *window,
                 QWidget *parent)
    : QWidget(parent)
{
    auto *picker = new DatePicker(reading.clock, settings, window, name + u"Calendar"_s);
    m_from = named(new DateBox(reading, picker, this), name + u"From"_s);
    m_to = named(new DateBox(reading, picker, this), name + u"To"_s);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(8);
    row->addWidget(m_from);
    row->addWidget(makeQuietLabel(u"to"_s, this));
    row->addWidget(m_to);
    row->addStretch(1);
    for (DateBox *box : {m_from, m_to}) {
        box->setFixedWidth(boxWidth(u"Nov-24-2026"_s, 112));
        box->setAccessibleName(box == m_from ? u"From"_s : u"To"_s);
    }
}

void DaySpan::setDays(QDate from, QDate to)
{
    m_fromSet = from;
    m_toSet = to;
    m_from->setDate(from);
    m_to->setDate(to);
}

QDate DaySpan::first() const
{
    return m_from->date().value_or(m_fromSet);
}

QDate DaySpan::second() const
{
    return m_to->date().value_or(m_toSet);
}

QDate DaySpan::from() const
{
    return std::min(first(), second());
}

QDate DaySpan::to() const
{
    return std::max(first(), second());
}

QString DaySpan::refuse()
{
    for (DateBox *box : {m_from, m_to}) {
        if (box->date())
            continue;
        box->setFocus();
        box->selectAll();
        return box->text().trimmed().isEmpty() ? u"Both days are needed"_s
                                               : box->text().trimmed() + u" is no date"_s;
    }
    return {};
}
