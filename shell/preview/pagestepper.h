// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/preview/sheetview.h"

class QLabel;
class QPushButton;

/// Steps through pages: Previous, "Page 2 of 5", Next. Steps that lead nowhere say why.
class PageStepper final : public QWidget
{
    Q_OBJECT
public:
    /// Object names of its parts.
    struct Names {
        QString previous, number, next;
    };
    /// As wide as its words, or over the whole of a narrow column.
    enum class Width { OfWords, OfColumn };

    PageStepper(const Names &names, QWidget *parent, Width width = Width::OfWords);

    /// `page` counts from 0; there is always one page, if an empty one.
    void setPage(int page, int count);
    int page() const { return m_page; }
    int count() const { return m_count; }

    /// Passes on what keys and wheel on `view` ask for, as far as there are such pages.
    void listenTo(SheetView *view);

signals:
    /// Another page is wanted; an enlarged one is to start at `edge`.
    void pageRequested(int page, SheetView::Edge edge);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showNumber();
    void request(int page, SheetView::Edge edge = SheetView::Edge::Top);

    bool m_isNarrow;
    int m_page = 0;
    int m_count = 1;
    QPushButton *m_previous;
    QPushButton *m_next;
    QLabel *m_number;
};
