// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/functionwindow.h"
#include "shell/manual/manual.h"

class ManualBrowser;
class QLabel;
class QListWidget;
class SearchBox;

/// The built-in manual: its contents and a search at the left, the page at the right. It is kept when it is
/// closed, so that it opens again at the page where it was left.
class HelpViewer final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit HelpViewer(Program &program, QWidget *parent = nullptr);

    /// Shows the page of a numeric context; the overview for one that has none.
    void openPage(int context);

    /// The page that is shown.
    int currentContext() const;

private:
    QWidget *makeContents();
    QWidget *makePagePanel();
    void makeMenus();
    void print();

    void showContents();
    void search();
    void openHit();
    void pageShown();
    void markWords();

    Manual m_manual;
    SearchBox *m_search = nullptr;
    QListWidget *m_list = nullptr;
    QLabel *m_count = nullptr;
    ManualBrowser *m_browser = nullptr;
};
