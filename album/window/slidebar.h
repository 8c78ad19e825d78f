// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/controls.h"

/// The buttons of a slide show, for the mouse: they come when it moves. By keys all of them can be done too,
/// so none takes the focus.
class SlideBar final : public PanelFrame
{
    Q_OBJECT
public:
    explicit SlideBar(QWidget *parent);

    void setPaused(bool isPaused);
    void setCaptions(bool areShown);

signals:
    void backAsked();
    void pauseAsked();
    void nextAsked();
    void captionsAsked();
    void endAsked();

private:
    QPushButton *m_pause;
    QPushButton *m_captions;
};
