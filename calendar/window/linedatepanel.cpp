// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/linedatepanel.h"

#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/program/program.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

LineDatePanel::LineDatePanel(const Program &program, QWidget *window, QWidget *parent)
    : TaskPanel(u"lineDatePanel"_s, u"Move to Another Date"_s, parent)
    , m_line(makeHeading({}, this))
    , m_date(nullptr)
    , m_copy(named(new QCheckBox(u"&Copy it, and leave it here too"_s, this), u"lineCopy"_s))
{
    auto *content = new QWidget(this);
    auto *picker = new DatePicker(program.clock, program.settings, window, u"lineCalendar"_s);
    m_date = named(new DateBox({program.state.dateStyle, program.clock}, picker, content), u"lineDate"_s);
    m_date->setFixedWidth(boxWidth(u"Nov-24-2026"_s, 160));
    m_line->setWordWrap(true);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addWidget(m_line);
    column->addLayout(labelled(u"To the date:"_s, m_date));
    column->addWidget(m_copy);
    column->addStretch(1);
    setContent(content);
    setFocusProxy(m_date);
    QPushButton *move = addButton(u"lineMove"_s, u"&Move"_s, ButtonKind::Main);
    QPushButton *cancel = setLeaveButton(u"lineCancel"_s, u"C&ancel"_s);
    setTabOrder(m_date, m_copy);
    setTabOrder(m_copy, move);
    setTabOrder(move, cancel);
    connect(move, &QPushButton::clicked, this, &LineDatePanel::accepted);
    connect(m_date, &QLineEdit::returnPressed, this, &LineDatePanel::accepted);
    connect(m_copy, &QCheckBox::toggled, move,
            [move](bool isCopied) { move->setText(isCopied ? u"&Copy"_s : u"&Move"_s); });
}

void LineDatePanel::start(const QString &line, QDate date)
{
    m_line->setText(line);
    m_date->setDate(date);
    m_date->selectAll();
    m_copy->setChecked(false);
    setWords({});
}

std::optional<QDate> LineDatePanel::date() const
{
    return m_date->date();
}

bool LineDatePanel::isCopied() const
{
    return m_copy->isChecked();
}

void LineDatePanel::refuse(const QString &why)
{
    setWords(why);
    m_date->setFocus();
}
