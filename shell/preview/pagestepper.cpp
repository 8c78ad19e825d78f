// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/preview/pagestepper.h"

#include "shell/controls/controls.h"
#include "shell/core/framelines.h"
#include "shell/look/theme.h"

#include <QHBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int gap = 8;
constexpr int narrowGap = 2;
constexpr int narrowButton = 30; ///< leaves room for "Page 12 of 1516" between the two
} // namespace

PageStepper::PageStepper(const Names &names, QWidget *parent, Width width)
    : QWidget(parent)
    , m_isNarrow(width == Width::OfColumn)
    , m_previous(makeIconButton(names.previous, "previous"_L1, u"Previous page"_s, this))
    , m_next(makeIconButton(names.next, "next"_L1, u"Next page"_s, this))
{
    m_number = named(m_isNarrow ? new ElidedLabel(this) : new QLabel(this), names.number);
    m_number->setFont(TypeScale::strong());
    m_number->setAlignment(Qt::AlignCenter);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(m_isNarrow ? narrowGap : gap);
    row->addWidget(m_previous);
    row->addWidget(m_number, m_isNarrow ? 1 : 0);
    row->addWidget(m_next);
    if (m_isNarrow) {
        for (QPushButton *button : {m_previous, m_next})
            button->setFixedWidth(narrowButton);
    }
    connect(m_previous, &QPushButton::clicked, this, [this] { request(m_page - 1); });
    connect(m_next, &QPushButton::clicked, this, [this] { request(m_page + 1); });
    setPage(0, 1);
}

void PageStepper::setPage(int page, int count)
{
    m_page = page;
    m_count = count;
    showNumber();
    // From a button that dims, the focus would leave the preview.
    const bool isFirst = page == 0;
    const bool isLast = page + 1 == count;
    if (!isFirst && isLast && m_next->hasFocus()) {
        setUnavailable(m_previous, {});
        m_previous->setFocus();
    } else if (isFirst && !isLast && m_previous->hasFocus()) {
        setUnavailable(m_next, {});
        m_next->setFocus();
    }
    setUnavailable(m_previous, isFirst ? FrameLines::firstPage() : QString());
    setUnavailable(m_next, isLast ? FrameLines::lastPage() : QString());
}

/// Where the column has no room for more, the figures alone.
void PageStepper::showNumber()
{
    const QString words = FrameLines::pageOf(m_page + 1, m_count);
    const bool isWhole = !m_isNarrow || m_number->fontMetrics().horizontalAdvance(words) <= m_number->width();
    m_number->setText(isWhole ? words : u"%1 of %2"_s.arg(m_page + 1).arg(m_count));
}

void PageStepper::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    showNumber();
}

void PageStepper::listenTo(SheetView *view)
{
    connect(view, &SheetView::stepRequested, this,
            [this](int step, SheetView::Edge edge) { request(m_page + step, edge); });
    connect(view, &SheetView::firstRequested, this, [this] { request(0); });
    connect(view, &SheetView::lastRequested, this, [this] { request(m_count - 1); });
}

void PageStepper::request(int page, SheetView::Edge edge)
{
    if (page >= 0 && page < m_count)
        emit pageRequested(page, edge);
}
