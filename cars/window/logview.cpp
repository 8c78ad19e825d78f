// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/logview.h"

#include "cars/window/opencar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"

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

void LogView::addParts(const QList<QWidget *> &above)
{
    for (QWidget *part : above)
        addContent(part);
    addContent(m_pane, 1);
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
