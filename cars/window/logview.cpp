// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/logview.h"

#include "cars/window/opencar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/scrollpart.h"

#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

LogView::LogView(const QString &name, const CarDesk &desk, CarPart part, LogPane *pane,
                 const QString &addCaption)
    : CarView(name, desk)
    , m_part(part)
    , m_pane(pane)
{
    QPushButton *add = makeButton(name + u"Add"_s, addCaption, &foot());
    foot().addRight(add);
    setFocusProxy(pane);
    connect(add, &QPushButton::clicked, pane, &LogPane::take);
    connect(pane, &LogPane::said, this, &LogView::said);
    connect(pane, &LogPane::noticed, this, &LogView::noticed);
    connect(pane, &LogPane::added, this, &LogView::done);
}

/// Title and buttons stay in sight where the rest has no room.
void LogView::addScrolling(const QList<QWidget *> &above)
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins({});
    layout->setSpacing(12);
    for (QWidget *part : above)
        layout->addWidget(part);
    layout->addWidget(m_pane, 1);
    auto *scroll = named(new ScrollPart(content, this), objectName() + u"Scroll"_s);
    scroll->scrollByItself();
    addContent(scroll, 1);
}

void LogView::finishEdit()
{
    m_pane->finishEdit();
}

void LogView::refresh()
{
    m_pane->refresh();
    showFigures();
}
