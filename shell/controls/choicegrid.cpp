// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/choicegrid.h"

#include "shell/controls/controls.h"
#include "shell/controls/taborder.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QRadioButton>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int rowHeight = 36;
} // namespace

ChoiceGrid::ChoiceGrid(const QString &name, QWidget *parent)
    : QWidget(parent)
    , m_choices(new QButtonGroup(this))
    , m_grid(new QGridLayout(this))
{
    setObjectName(name);
    m_grid->setContentsMargins({});
    m_grid->setHorizontalSpacing(16);
    m_grid->setVerticalSpacing(6);
    m_grid->setColumnStretch(2, 1);
    connect(m_choices, &QButtonGroup::idToggled, this, [this](int, bool isOn) {
        if (!isOn)
            return;
        follow();
        emit chosenChanged();
    });
}

void ChoiceGrid::add(const QString &caption, QWidget *beside)
{
    const int number = int(m_besides.size());
    auto *choice = named(new QRadioButton(caption, this), u"%1_%2"_s.arg(objectName()).arg(number));
    m_choices->addButton(choice, number);
    if (number == 0)
        TabOrder::findTheChosen(*m_choices);
    m_besides.append(beside);
    m_grid->addWidget(choice, number, 0);
    m_grid->setRowMinimumHeight(number, rowHeight);
    leadOn(choice);
    if (!beside)
        return;
    m_grid->addWidget(beside, number, 1);
    if (beside->focusPolicy() == Qt::NoFocus && beside->layout())
        m_last = TabOrder::follow(*beside->layout(), m_last);
    else
        leadOn(beside);
}

void ChoiceGrid::leadOn(QWidget *part)
{
    if (QWidget *before = std::exchange(m_last, part))
        setTabOrder(before, part);
}

void ChoiceGrid::choose(int number)
{
    m_choices->button(number)->setChecked(true);
    setFocusProxy(m_choices->button(number));
    follow();
}

int ChoiceGrid::chosen() const
{
    return std::max(m_choices->checkedId(), 0);
}

void ChoiceGrid::setWhyNot(int number, const QString &reason)
{
    setUnavailable(m_choices->button(number), reason);
}

void ChoiceGrid::follow()
{
    for (int i = 0; i < m_besides.size(); ++i) {
        if (m_besides[i])
            m_besides[i]->setEnabled(i == m_choices->checkedId());
    }
}
