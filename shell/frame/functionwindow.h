// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"
#include "shell/core/pagecontext.h"
#include "shell/core/pagesheets.h"
#include "shell/core/settingskeys.h"
#include "shell/frame/commands.h"
#include "shell/frame/panelcolors.h"
#include "shell/frame/standardcommands.h"
#include "shell/program/program.h"
#include "storage/filestamp.h"

#include <QAction>
#include <QMainWindow>
#include <QPointer>

#include <optional>

class ActivityBar;
class PreviewPane;
class QMenu;
class QStackedWidget;
class QVBoxLayout;
class RefusedCommands;
class SideSplitter;
class UndoStack;
class WindowToolbar;
class WorkViews;

/// How a window of a function differs from the others in its frame.
struct WindowTraits {
    QString name;     ///< class and object name
    QString caption;  ///< window title
    QString activity; ///< first panel of the status bar
    PanelColorSettings colors;
    int helpContext = 0; ///< page of the manual that F1 opens
    TextSetting topToolbar = SettingsKeys::topToolbar;
    QSize openingSize{1280, 800};
};

/// The frame of a function window: menu bar, one toolbar, the work area, the page preview in its place when a
/// page is looked at, the status bar. A window deletes itself when it is closed.
class FunctionWindow : public QMainWindow
{
    Q_OBJECT
public:
    FunctionWindow(Program &program, WindowTraits traits, QWidget *parent = nullptr);
    ~FunctionWindow() override;

    /// Whether the window holds something typed that no file has.
    virtual bool isModified() const { return false; }

    /// Asks what must be asked before the window goes (unsaved data, unsaved colours) and keeps the answers;
    /// nothing is saved or dropped yet. False: the user stays. Closing asks nothing again after that.
    bool mayLeave();
    /// Saves the data where that was the answer. False: refused, and the user was told.
    [[nodiscard]] bool saveToLeave();
    /// The window does not go after all: it asks again the next time.
    void stay() { m_leaving.reset(); }

    /// Before the files are copied: Yes saves what was typed, No leaves it typed, Cancel stays. False: the
    /// user stays.
    [[nodiscard]] bool mayBackUp();
    /// Why there is nothing to copy: none of the function's files has a byte. Empty where there is.
    virtual QString whyNothingToBackUp() const;

    /// Shows `builder`'s page over the work area; Esc or "Close Preview" brings the work back.
    void showPreview(std::function<Page(const PageContext &)> builder, const QString &jobName);
    /// The same on a sheet that lies on its side at first.
    void showLandscape(std::function<Page(const PageContext &)> builder, const QString &jobName);
    /// The same for more than should be built at once.
    void showSheets(std::function<PageSheets(const PageContext &)> builder, const QString &jobName);
    void closePreview();
    bool isPreviewShown() const;

protected:
    /// Writes what was typed. False: refused, and the user was told.
    [[nodiscard]] virtual bool save() { return true; }
    /// The user wants what the files have.
    virtual void drop() {}
    /// The question in front of leaving; only asked while the window is modified.
    virtual Message leaveQuestion() const { return {}; }
    /// Asks it: Yes saves first, No drops what is not saved, Cancel stays.
    virtual Answer askToLeave() { return askAbout(leaveQuestion()); }
    /// The question in front of a step that is undone or done again; only asked while the window is modified.
    virtual Message replaceQuestion() const { return leaveQuestion(); }
    /// The question in front of copying the files; only asked while the window is modified.
    virtual Message backupQuestion() const { return leaveQuestion(); }
    /// Before something takes the place of unsaved work: Yes saves, No drops, Cancel stays. At the end of a
    /// desktop session nobody can go back, and there is no Cancel. False: the user stays.
    bool mayReplace(const Message &question);

    /// One of the watched files was changed by somebody else since this window saw it last; called when the
    /// user comes back to the window.
    virtual void filesChanged() {}

    Program &program() const { return m_program; }
    const Clock &clock() const { return m_program.clock; }
    Answer ask(const Message &message) { return m_program.dialogs.ask(this, message); }
    ActivityBar &activity() const { return *m_activity; }
    PanelColors &colors() const { return *m_colors; }
    PreviewPane &preview();

    /// The files of the data folder whose changes concern this window; they count as seen now.
    void watchFiles(const QStringList &names);
    /// The watched files are as this window knows them: call after reading or writing them.
    void filesSeen();

    Commands &commands() const { return *m_commands; }
    /// What was done here and can be taken back. A window that pushes steps has its commands in a menu.
    UndoStack &undoStack() const { return *m_undoStack; }
    /// A command that every window has; made when first asked for. Backup and restore say when there is none
    /// in this program.
    QAction *standard(Standard command);
    /// The same on the toolbar, with its icon and word; a name makes it a tool of its own. Panel Color and
    /// Backup give way in a narrow window.
    void addStandardTool(Standard command, const QString &name = {});
    /// The tools that stand behind a window's own: panel colour, backup, help.
    void addUsualTools();
    /// The menu of the options: the colors, what `addOwn` puts there, and Exit.
    void addUsualOptions(QMenu *options, const std::function<void(QMenu *)> &addOwn);
    /// The "Utilities" menu: backup and restore.
    void addUtilitiesMenu();
    /// "Help" at the end of the menu bar.
    void addHelpEntry();

    /// The widget that fills the window between toolbar and status bar (margin 16 is added around it).
    void setWork(QWidget *work);
    /// The same with a side pane; while the window is busy, that cannot be used.
    void setWork(SideSplitter *splitter);
    /// The views in the work panel: Esc leaves what stands over their home before it leaves the window. Call
    /// when they are complete.
    void setViews(WorkViews *views);
    /// A panel: rounded, coloured by the user's panel colour, registered with `colors()`.
    QWidget *makePanel(const QString &name);
    /// The same, filled by `work`.
    QWidget *makePanel(const QString &name, QWidget *work);
    /// The one toolbar; "Main Menu" stands first in it.
    WindowToolbar &toolbar() const { return *m_toolbar; }
    /// A menu of the menu bar; menu and its action bear `name`.
    QMenu *addMenu(const QString &name, const QString &caption);
    /// Call once when menus and toolbar are complete: restores the toolbar's layout, colours and window
    /// geometry.
    void finishFrame();

    bool event(QEvent *event) override;
    /// Tab leads through everything in its order.
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent *event) final;
    void keyPressEvent(QKeyEvent *event) final;
    void changeEvent(QEvent *event) override;

    /// A long walk is under way: the window does not close, and neither menus nor toolbar nor side pane can
    /// be used.
    void setBusy(bool busy);
    bool isBusy() const { return m_busy; }

private:
    /// Yes and No are for saving; Ok where there is nothing to save.
    struct Leaving {
        Answer data = Answer::Ok;
        Answer colors = Answer::Ok;
    };

    Answer askAbout(const Message &question);
    PreviewPane &bringPreview();
    PageContext pageContext(const PageSetup &setup) const;
    Page headed(Page page) const;
    bool leaveView();
    void redo() const;
    QString storeKey(const QString &what) const;

    Program &m_program;
    WindowTraits m_traits;
    ActivityBar *m_activity;
    PanelColors *m_colors;
    Commands *m_commands;
    StandardCommands *m_standard;
    UndoStack *m_undoStack;
    WindowToolbar *m_toolbar;
    RefusedCommands *m_refused;
    QStackedWidget *m_stack;
    QVBoxLayout *m_workPlace;
    PreviewPane *m_preview = nullptr; ///< made when first asked for
    SideSplitter *m_sideSplitter = nullptr;
    WorkViews *m_views = nullptr;
    QPointer<QWidget> m_focusBeforePreview;
    QStringList m_watchedFiles;
    FileStamp m_seen;
    bool m_busy = false;
    std::optional<Leaving> m_leaving; ///< the answers, between the questions and the leaving
};
