// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/titledview.h"

#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/titleline.h"
#include "shell/core/framelines.h"

#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

TitledView::TitledView(const QString &name, QWidget *parent)
    : QWidget(parent)
    , m_title(new TitleLine(name + u"Title"_s, {}, this))
    , m_rows(new QVBoxLayout(this))
    , m_foot(named(new ButtonRow(this), name + u"Foot"_s))
{
    setObjectName(name + u"View"_s);
    m_rows->setContentsMargins(20, 16, 20, 18);
    m_rows->setSpacing(12);
    m_rows->addWidget(m_title);
    m_rows->addWidget(makeLine(this));
    m_rows->addWidget(m_foot);
}

void TitledView::addContent(QWidget *content, int stretch)
{
    m_rows->insertWidget(m_rows->count() - 2, content, stretch);
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
