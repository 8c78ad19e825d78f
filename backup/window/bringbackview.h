// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/window/backupdesk.h"
#include "backup/window/comparison.h"
#include "shell/controls/titledview.h"

#include <vector>

class DifferencesModel;
class EmptyPage;
class QAction;
class QComboBox;
class QLabel;
class QMenu;
class QPushButton;
class QTableView;
class QTextBrowser;
struct UndoStep;

/// The side "Bring Back": what differs between a snapshot or backup and now, both versions of each record
/// beside one another; those that are ticked come back.
class BringBackView final : public TitledView
{
    Q_OBJECT
public:
    explicit BringBackView(const BackupDesk &desk, QWidget *parent = nullptr);
    ~BringBackView() override;

    /// "Bring Back", "Show What Is Guarded..." and "Open Backup...".
    void addCommands(QMenu *menu);
    /// Looks again at what snapshots and backups there are and, where one is shown, at what differs from it.
    void look();
    /// Looks into a backup that was opened; it stays so until another one is chosen.
    void showOpened(const BackupSet &set, const std::shared_ptr<ComparedCopy> &copy);

signals:
    /// The set is to be opened, which asks for its password or for disks.
    void openWanted(const BackupSet &set);
    /// Records came back, which can be taken back.
    void edited(const UndoStep &step);
    void said(const QString &line);

protected:
    void refresh() override;

private:
    /// A snapshot, or the last backup on the chosen drive.
    struct Choice {
        QString title;
        Comparison::Source source;

        bool isAtOnce() const;
    };

    std::vector<Choice> choices() const;
    Choice choiceOf(const BackupSet &set, const QString &place) const;
    const Choice *chosen() const;
    bool isToBeOpened() const;
    void lookForCopies();
    QWidget *makeChoice();
    void makeTable();
    QWidget *makeVersions();
    void showWords();
    QString sentence() const;
    QStringList notes() const;
    QString whyNoSet() const;
    QString howOpened() const;
    QString whyNot() const;
    void openChosen();
    void show();
    void showVersions();
    void bringBack();

    BackupDesk m_desk;
    Comparison *m_comparison;
    DifferencesModel *m_model;
    std::vector<Choice> m_choices; ///< in the order of the box
    QComboBox *m_choice;
    QWidget *m_choosing = nullptr; ///< the box with its words
    QLabel *m_words;
    QTableView *m_view;
    QWidget *m_differences; ///< both versions and the table
    EmptyPage *m_empty;
    QTextBrowser *m_there = nullptr;
    QTextBrowser *m_here = nullptr;
    QPushButton *m_open = nullptr;
    std::optional<Choice> m_opened; ///< a set that asked for something, as long as it is looked into
    bool m_isOpen = false;          ///< a snapshot or set is looked into
};
