// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/titledview.h"

#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/lowwindow.h"
#include "shell/controls/scrollpart.h"
#include "shell/controls/titleline.h"
#include "shell/core/framelines.h"

#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

TitledView::TitledView(const QString &name, QWidget *parent)
    : QWidget(parent)
    , m_title(new TitleLine(name + u"Title"_s, {}, this))
    , m_rows(new QVBoxLayout(this))
    , m_content(new QWidget)
    , m_parts(new QVBoxLayout(m_content))
    , m_scroll(named(new ScrollPart(m_content, this), name + u"Scroll"_s))
    , m_foot(named(new ButtonRow(this), name + u"Foot"_s))
{
    setObjectName(name + u"View"_s);
    m_parts->setContentsMargins({});
    auto *low = new LowWindow(this);
    connect(low, &LowWindow::changed, this, &TitledView::setTight);
    setTight(low->isLow());
    m_rows->addWidget(m_title);
    m_rows->addWidget(m_scroll, 1);
    m_rows->addWidget(makeLine(this));
    m_rows->addWidget(m_foot);
}

void TitledView::setTight(bool isTight)
{
    m_rows->setContentsMargins(20, isTight ? 8 : 16, 20, isTight ? 10 : 18);
    for (QVBoxLayout *rows : {m_rows, m_parts})
        rows->setSpacing(isTight ? 6 : 12);
}

void TitledView::addContent(QWidget *content, int stretch)
{
    m_parts->addWidget(content, stretch);
}

void TitledView::follow(bool isModified)
{
    m_foot->setWords(isModified ? FrameLines::unsavedChanges() : QString());
    m_isStale = true;
    if (isVisible() && std::exchange(m_isStale, false))
        refresh();
}

void TitledView::showEvent(QShowEvent *event)
{
    if (std::exchange(m_isStale, false))
        refresh();
    QWidget::showEvent(event);
}
