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

    /// "Bring Back" and "Show What Is Guarded...".
    void addCommands(QMenu *menu);
    /// Looks again at what snapshots and backups there are and, where one is shown, at what differs from it.
    void look();

signals:
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
    };

    std::vector<Choice> choices() const;
    void lookForCopies();
    QWidget *makeChoice();
    void makeTable();
    QWidget *makeVersions();
    void showWords();
    QString sentence() const;
    QStringList notes() const;
    QString whyNotTheSet() const;
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
    bool m_isOpen = false; ///< a snapshot is looked into
};
