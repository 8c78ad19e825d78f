// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/panelcolors.h"

#include "shell/controls/activitybar.h"
#include "shell/core/framelines.h"
#include "shell/core/shellmessages.h"
#include "shell/look/colortext.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"
#include "shell/program/sharedprocedures.h"

#include <QApplication>
#include <QWidget>

#include <utility>

PanelColors::PanelColors(Program &program, PanelColorSettings settings, QWidget *window,
                         ActivityBar &activity)
    : QObject(window)
    , m_program(program)
    , m_settings(settings)
    , m_window(window)
    , m_activity(activity)
{
    connect(&program.changes, &ProgramSignals::panelColorsChanged, this, &PanelColors::takeProgramColor);
}

void PanelColors::addPanel(QWidget *panel)
{
    m_panels.append(panel);
    apply();
}

void PanelColors::load()
{
    const QPalette palette = QApplication::palette();
    QString panel = m_program.settings.text(m_settings.panel);
    if (ColorText::isDefault(panel))
        panel = m_program.settings.text(m_settings.programWide);
    m_panel = ColorText::decode(panel, palette);
    m_text.reset();
    if (m_settings.text)
        m_text = ColorText::decodeInk(m_program.settings.text(*m_settings.text), palette);
    m_panelChanged = m_textChanged = false;
    apply();
}

/// The latest choice is the one for all windows, also where it could not be written.
void PanelColors::takeProgramColor(const QString &color)
{
    m_panel = ColorText::decode(color, QApplication::palette());
    m_panelChanged = false;
    apply();
}

std::optional<QColor> PanelColors::choose(const QString &title, const QColor &preset, const QColor &forbidden)
{
    const Answer answer = m_program.dialogs.ask(m_window, ShellMessages::newOrDefaultColor(title));
    if (answer == Answer::No)
        return QColor();
    if (answer != Answer::Yes)
        return {};
    const std::optional<QColor> chosen = m_program.dialogs.chooseColor(m_window, preset);
    if (!chosen || chosen->rgb() != forbidden.rgb())
        return chosen;
    HINFO1::showColorConflict(m_program, m_window);
    return {};
}

void PanelColors::choosePanelColor()
{
    const QString activity = m_activity.activity();
    m_activity.setActivity(ShellMessages::panelColorTitle());
    const QColor shown = m_panel.value_or(Theme::of(m_window).panel);
    if (const auto color = choose(ShellMessages::panelColorTitle(), shown, ink())) {
        m_panel = color->isValid() ? ColorText::decode(ColorText::encode(*color), QApplication::palette())
                                   : std::nullopt;
        m_panelChanged = true;
        apply();
        // A window that recolours text as well asks for both when it is left.
        if (!m_settings.text) {
            if (m_program.dialogs.ask(m_window, ShellMessages::savePanelColor()) == Answer::Yes)
                save();
            m_panelChanged = false;
        }
    }
    m_activity.setActivity(activity);
}

void PanelColors::chooseTextColor()
{
    const QString activity = m_activity.activity();
    m_activity.setActivity(ShellMessages::textColorTitle());
    const QColor panel = m_panel.value_or(Theme::of(m_window).panel);
    if (const auto color = choose(ShellMessages::textColorTitle(), ink(), panel)) {
        m_text = color->isValid() ? color : std::nullopt;
        m_textChanged = true;
        apply();
    }
    m_activity.setActivity(activity);
}

Answer PanelColors::askToSave()
{
    return hasUnsavedChanges() ? m_program.dialogs.ask(m_window, ShellMessages::saveColors()) : Answer::Ok;
}

QColor PanelColors::ink() const
{
    const QColor panel = m_panel.value_or(Theme::of(m_window).panel);
    if (m_text && m_text->rgb() != panel.rgb())
        return *m_text;
    return m_panel ? inkOn(*m_panel) : Theme::of(m_window).text;
}

void PanelColors::apply()
{
    const bool isDesigned = !m_panel && !m_text;
    const QPalette palette = Theme::of(m_window).panelPalette(panelColor(), isDesigned ? QColor() : ink());
    for (const QPointer<QWidget> &panel : std::as_const(m_panels))
        if (panel)
            panel->setPalette(palette);
    emit changed();
}

bool PanelColors::save()
{
    const QString panel = ColorText::encode(m_panel.value_or(Theme::of(m_window).panel));
    const bool panelChanged = std::exchange(m_panelChanged, false);
    const bool textChanged = std::exchange(m_textChanged, false);
    SettingsChange change(m_program.settings);
    if (panelChanged)
        change.setText(m_settings.panel, panel);
    if (textChanged && m_settings.text)
        change.setText(*m_settings.text, m_text ? ColorText::encode(*m_text) : ColorText::defaultText());
    QString pending = panel;
    const bool isSaved =
        panelChanged ? HINFO1::updateProgramColors(m_program, m_window, pending, 0, change) : change.commit();
    if (!isSaved)
        m_activity.say(FrameLines::settingNotSaved());
    return isSaved;
}
