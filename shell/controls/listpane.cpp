// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/listpane.h"

#include "shell/controls/listrowdelegate.h"
#include "shell/controls/searchbox.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QVBoxLayout>

namespace {
constexpr int leastWidth = 180;
} // namespace

ListPane::ListPane(SearchBox *search, QAbstractItemView *view, QLabel *count, QWidget *parent)
    : QWidget(parent)
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(8);
    rows->addWidget(search);
    rows->addWidget(new WholeRows(view, count, this), 1);
    search->setTarget(view);
    setMinimumWidth(leastWidth);
    setFocusProxy(view);
}

void ListPane::addSwitch(QWidget *control)
{
    static_cast<QVBoxLayout *>(layout())->insertWidget(1, control);
}
