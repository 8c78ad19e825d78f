// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/dayorder.h"

#include <QWidget>

class QBoxLayout;
class QButtonGroup;
class QLabel;
struct Program;

/// The heads over the rows of a day, and where entries without AM or PM stand; where there is no room for all
/// of it in one line, the heads have one of their own.
class RowHeads final : public QWidget
{
    Q_OBJECT
public:
    explicit RowHeads(Program &program, QWidget *parent = nullptr);

    UntimedPlacement placement() const;
    /// That of two lines: a window may always become as narrow.
    QSize minimumSizeHint() const override;

signals:
    /// The choice is kept already, as far as the disk took it.
    void placementChosen();
    /// A quiet line for the status bar.
    void said(const QString &line);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeHeads();
    QWidget *makePlacement();
    void setPlacement(int placement);

    Program &m_program;
    QButtonGroup *m_placement;
    QLabel *m_text = nullptr;
    QWidget *m_heads;
    QWidget *m_choice;
    QBoxLayout *m_layout;
};
