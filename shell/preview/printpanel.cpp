// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/preview/printpanel.h"

#include "shell/controls/choicegrid.h"
#include "shell/controls/taborder.h"

#include <QKeyEvent>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

PrintPanel::PrintPanel(const QString &name, QWidget *parent)
    : TaskPanel(name + u"Panel"_s, u"Print Options"_s, parent)
    , m_name(name)
    , m_what(new ChoiceGrid(u"printWhat"_s, this))
{
    setFocusProxy(m_what);
}

QPushButton *PrintPanel::compose(QLayout *how)
{
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(8);
    column->addWidget(makeHeading(u"What is printed"_s, content));
    column->addWidget(m_what);
    if (how) {
        column->addSpacing(8);
        column->addWidget(makeHeading(u"How"_s, content));
        column->addLayout(how);
        TabOrder::follow(*how, m_what->lastInTab());
    }
    column->addStretch(1);
    setContent(content);
    QPushButton *show = addButton(m_name + u"Show"_s, u"Show &Pages"_s, ButtonKind::Main);
    connect(show, &QPushButton::clicked, this, &PrintPanel::showPages);
    return show;
}

void PrintPanel::addClose()
{
    setLeaveButton(m_name + u"Close"_s, u"C&lose"_s);
}

void PrintPanel::accept()
{
    showPages();
}

void PrintPanel::showPages()
{
    const QString why = refuse();
    setWords(why);
    if (why.isEmpty())
        emit accepted();
}

void PrintPanel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        accept();
    else
        TaskPanel::keyPressEvent(event);
}
