// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QWidget>

struct Program;

/// The window that greets while the program loads: for about two seconds, in the middle of the screen.
class Splash1 final : public QWidget
{
    Q_OBJECT
public:
    /// Reads the family name: the main window has not done so yet.
    explicit Splash1(const Program &program);

    /// Shows the window, complete, and returns.
    void open();

    /// Lets two seconds pass on the clock, processing window messages, and closes the window.
    void wait();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintCard(QPainter &painter, const QRectF &card) const;

    const Program &m_program;
    FamilyName m_familyName;
};
