// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QWidget>

class QSettings;
struct Program;

/// The window that greets while the program loads: for about two seconds, in the middle of the screen. A key
/// or a click ends it at once.
class Splash1 final : public QWidget
{
    Q_OBJECT
public:
    /// Reads the family name: the main window has not done so yet.
    explicit Splash1(const Program &program);

    /// Whether the user wants to see it at all: yes, until told otherwise.
    static bool isWanted(const QSettings &store);
    static void setWanted(QSettings &store, bool wanted);

    /// Shows the window, complete, and returns.
    void open();

    /// Lets two seconds pass on the clock, or less if the user does not want to wait, processing window
    /// messages. Then shows `next` and closes: in this order, since some systems let only the program in
    /// front bring a window there.
    void giveWayTo(QWidget &next);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void paintCard(QPainter &painter, const QRectF &card) const;

    const Program &m_program;
    FamilyName m_familyName;
    bool m_isEnough = false;
};
