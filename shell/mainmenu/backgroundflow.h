// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/mainmenu/backgroundchoice.h"

#include <QObject>
#include <QPointer>

class ActivityBar;
class BackgroundSelector;
class MenuPicture;
class PanelColors;
class QWidget;
struct Program;

/// The background of the main menu: the choice that holds, its picture, and the selector in which the user
/// changes it.
class BackgroundFlow final : public QObject
{
    Q_OBJECT
public:
    /// `colors`: the selector's panel takes them as well.
    BackgroundFlow(Program &program, MenuPicture &picture, PanelColors &colors, ActivityBar &activity,
                   QObject *parent);

    /// Reads the choice; nothing is shown yet.
    void load();
    /// Shows the picture of the choice that holds.
    void show();

    void openSelector();
    bool isSelectorOpen() const { return m_selector; }

signals:
    /// The selector has taken the place of the cards, or given it back.
    void selectorOpened();
    void selectorClosed();

private:
    QString picturePath(const BackgroundChoice &choice) const;
    void show(const BackgroundChoice &choice);
    void accept();
    void closeSelector();

    Program &m_program;
    MenuPicture &m_picture;
    PanelColors &m_colors;
    ActivityBar &m_activity;
    BackgroundSelector *m_selector = nullptr; ///< while it is open
    QPointer<QWidget> m_before;               ///< had the focus when the selector opened
    BackgroundChoice m_choice;
};
