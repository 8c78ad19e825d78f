// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/backgroundflow.h"

#include "shell/controls/activitybar.h"
#include "shell/controls/busycursor.h"
#include "shell/core/framelines.h"
#include "shell/core/settingskeys.h"
#include "shell/frame/panelcolors.h"
#include "shell/mainmenu/backgroundselector.h"
#include "shell/mainmenu/menupicture.h"
#include "shell/program/program.h"

BackgroundFlow::BackgroundFlow(Program &program, MenuPicture &picture, PanelColors &colors,
                               ActivityBar &activity, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_picture(picture)
    , m_colors(colors)
    , m_activity(activity)
{}

void BackgroundFlow::load()
{
    m_choice = BackgroundChoice::ofRecord(m_program.settings.tagged(SettingsKeys::background));
}

void BackgroundFlow::show()
{
    show(m_choice);
}

void BackgroundFlow::show(const BackgroundChoice &choice)
{
    m_picture.setPicture(picturePath(choice));
}

/// The household's own picture of that name, else the one that came with the program; empty for none.
QString BackgroundFlow::picturePath(const BackgroundChoice &choice) const
{
    if (choice.isPlain())
        return {};
    const QString own = m_program.folder.existingFile({}, choice.fileName());
    return own.isEmpty() ? m_program.programFolder.existingFile({}, choice.fileName()) : own;
}

void BackgroundFlow::openSelector()
{
    if (m_selector)
        return;
    const BusyCursor busy;
    m_before = m_picture.window()->focusWidget();
    const auto pathOf = [this](const BackgroundChoice &choice) { return picturePath(choice); };
    m_selector = new BackgroundSelector(m_choice, pathOf, &m_picture);
    m_colors.addPanel(m_selector->panel());
    connect(m_selector, &BackgroundSelector::chosen, this,
            qOverload<const BackgroundChoice &>(&BackgroundFlow::show));
    connect(m_selector, &BackgroundSelector::accepted, this, &BackgroundFlow::accept);
    connect(m_selector, &BackgroundSelector::cancelled, this, &BackgroundFlow::closeSelector);
    m_picture.showSelector(m_selector);
    emit selectorOpened();
    m_selector->focusChoice();
}

/// The selector's OK. A choice that cannot be written holds for this run.
void BackgroundFlow::accept()
{
    m_choice = m_selector->choice();
    const bool isSaved = m_program.settings.setTagged(SettingsKeys::background, m_choice.recordText());
    closeSelector();
    m_activity.say(isSaved ? QString() : FrameLines::settingNotSaved());
}

void BackgroundFlow::closeSelector()
{
    m_picture.closeSelector();
    m_selector->deleteLater();
    m_selector = nullptr;
    show();
    emit selectorClosed();
    if (m_before && m_before->isVisible())
        m_before->setFocus(Qt::OtherFocusReason);
    Hourglass::off();
}
