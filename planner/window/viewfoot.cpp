// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/viewfoot.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <QHBoxLayout>

using namespace Qt::Literals::StringLiterals;

ViewFoot::ViewFoot(const QString &name, const QString &hint, QWidget *parent)
    : QWidget(parent)
{
    QPushButton *day = makeButton(name + u"_dayView"_s, u"&Day View"_s, this, ButtonKind::Main);
    QPushButton *exit = makeButton(name + u"_exit"_s, u"E&xit"_s, this);
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    auto *words = new ElidedLabel(this);
    words->setText(hint);
    words->setFont(TypeScale::label());
    words->setForegroundRole(ThemeRole::quiet);
    row->addWidget(words, 1);
    row->addWidget(day);
    row->addWidget(exit);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(makeLine(this));
    layout->addLayout(row);
    connect(day, &QPushButton::clicked, this, &ViewFoot::dayRequested);
    connect(exit, &QPushButton::clicked, this, [this] { window()->close(); });
}
