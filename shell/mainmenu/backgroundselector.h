// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/mainmenu/backgroundchoice.h"

#include <QWidget>

#include <functional>
#include <vector>

class BackgroundSlot;
class QAbstractButton;
class QGridLayout;
class QRadioButton;
class QScrollArea;

/// The panel in which the main menu's background is chosen: sixteen thumbnails and the plain ground. It
/// stands over the picture itself, which follows each choice at once.
class BackgroundSelector final : public QWidget
{
    Q_OBJECT
public:
    /// The path of the picture of a choice; empty when there is none.
    using PathOf = std::function<QString(const BackgroundChoice &)>;

    /// Reads the thumbnails, each at the size that it is shown in.
    BackgroundSelector(const BackgroundChoice &current, const PathOf &pathOf, QWidget *parent = nullptr);

    const BackgroundChoice &choice() const { return m_choice; }

    /// Takes the user's panel colour.
    QWidget *panel() const { return m_panel; }

    /// Puts the focus on the picture in use.
    void focusChoice();

signals:
    void chosen(const BackgroundChoice &choice);
    void accepted();
    /// Esc: the choice is to stay as it was.
    void cancelled();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeSlots(const PathOf &pathOf);
    QWidget *makeFoot();
    void enter(QAbstractButton *button);
    void choose(const BackgroundChoice &choice);
    void mark();
    void arrange();

    BackgroundChoice m_choice;
    QWidget *m_panel;
    std::vector<BackgroundSlot *> m_slots;
    QScrollArea *m_area;
    QWidget *m_board;
    QGridLayout *m_grid;
    QRadioButton *m_plain;
    int m_columns = 0;
};
