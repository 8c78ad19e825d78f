// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/findagain.h"
#include "album/window/walkpanel.h"

#include <memory>

class FoundTable;
class QLabel;
class QTableView;
struct Program;

/// "Find Again": one folder is chosen, what was missing and lies in it is shown, and linked anew in one step,
/// for the other functions' pictures as well.
class FindAgainPanel final : public WalkPanel
{
    Q_OBJECT
public:
    FindAgainPanel(const Program &program, PhotoShelf &shelf, QWidget *window, QWidget *parent = nullptr);
    ~FindAgainPanel() override;

    /// `others` are the pictures that other functions miss.
    void start(FindAgain::Others others);
    void look(const QString &folder);

signals:
    void said(const QString &line);

protected:
    void stopWalk() override;

private:
    void choose();
    void finish(bool wasStopped);
    void follow();
    void link();

    const Program &m_program;
    PhotoShelf &m_shelf;
    QWidget *m_window;
    std::unique_ptr<FindAgain> m_find;
    QLabel *m_what;
    FoundTable *m_table;
    QTableView *m_view;
    QPushButton *m_choose;
    QPushButton *m_link;
    QString m_folder;
};
