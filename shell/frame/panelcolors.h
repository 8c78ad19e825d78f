// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"
#include "shell/core/programstate.h"
#include "shell/core/settings.h"

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QVector>

#include <optional>

class ActivityBar;
class QWidget;
struct Program;

/// Where a window keeps its colours.
struct PanelColorSettings {
    TextSetting panel;               ///< the window's own record
    TextSetting programWide;         ///< what it falls back to when its own is empty or "Default"
    std::optional<TextSetting> text; ///< only windows that recolour text
};

/// The colours of one window's panels and their text: loading, the choosing flow with its conflict rule, the
/// saving question and the offer to colour the whole program.
class PanelColors : public QObject
{
    Q_OBJECT
public:
    PanelColors(Program &program, PanelColorSettings settings, QWidget *window, ActivityBar &activity);

    /// `panel` takes the colour, with every label on it; boxes, lists and buttons keep theirs.
    void addPanel(QWidget *panel);

    /// Reads the records and colours the panels.
    void load();

    void choosePanelColor();
    void chooseTextColor();

    /// Asks whether to save colours that were changed and not saved yet: only windows that recolour text
    /// leave the question for this moment. Yes, No or Cancel, and nothing is done yet; Ok without any.
    Answer askToSave();
    /// Writes what was changed, and offers the panels' colour to the whole program. False, with a line in the
    /// status bar, when that was refused.
    bool save();
    bool hasUnsavedChanges() const { return m_panelChanged || m_textChanged; }

    /// The colour of the panels as they are shown now; invalid while the designed one is.
    QColor panelColor() const { return m_panel.value_or(QColor()); }
    /// The ink on the panels now; a text colour that is the panels' own, too, gives way to one that can be
    /// read.
    QColor ink() const;

signals:
    /// The panels have new colours: a page preview takes the panel colour for its desk.
    void changed();

private:
    /// Asks for a colour, given the one to preset and the one it must differ from. Nothing: leave it as it
    /// is; an invalid colour: the system's default.
    std::optional<QColor> choose(const QString &title, const QColor &preset, const QColor &forbidden);
    void takeProgramColor(const QString &color);
    void apply();

    Program &m_program;
    PanelColorSettings m_settings;
    QWidget *m_window;
    ActivityBar &m_activity;
    QVector<QPointer<QWidget>> m_panels;
    std::optional<QColor> m_panel; ///< nothing: as designed
    std::optional<QColor> m_text;  ///< nothing: the ink that suits the panel
    bool m_panelChanged = false;
    bool m_textChanged = false;
};
