// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

/// A part of a window that scrolls by itself, so that what stands above and below it stays in sight. It takes
/// its content when it is given its style: by then it stands in its window, and its content is given its
/// style once rather than again with each move.
class ScrollPart final : public QScrollArea
{
    Q_OBJECT
public:
    explicit ScrollPart(QWidget *content, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;

private:
    QWidget *m_content;
};
