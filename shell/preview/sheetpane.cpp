// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/preview/sheetpane.h"

#include "shell/controls/controls.h"
#include "shell/pages/pagepainter.h"

#include <QVBoxLayout>

#include <algorithm>
#include <utility>

SheetPane::SheetPane(const QString &viewName, const PageStepper::Names &steps, QWidget *parent)
    : QWidget(parent)
    , m_view(named(new SheetView(this), viewName))
    , m_steps(new PageStepper(steps, this))
{
    m_steps->listenTo(m_view);
    connect(m_steps, &PageStepper::pageRequested, this, &SheetPane::showSheet);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_view, 1);
    rows->addWidget(m_steps, 0, Qt::AlignHCenter);
}

SheetPane::~SheetPane() = default;

void SheetPane::setSheets(int count, LayOut layOut)
{
    m_count = std::max(1, count);
    m_layOut = std::move(layOut);
    showSheet(m_sheet);
}

void SheetPane::showSheet(int sheet)
{
    m_sheet = std::clamp(sheet, 0, m_count - 1);
    m_steps->setPage(m_sheet, m_count);
    if (!m_layOut)
        return;
    auto painter = std::make_unique<PagePainter>(m_layOut(m_sheet));
    m_view->setSheet(painter.get(), 0);
    m_painter = std::move(painter); // the one before it was in use until now
}
