// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QAbstractItemView;
class QLabel;
class SearchBox;

/// The pane at the left of a window: a search box, and below it the list that it searches, at whole rows,
/// with a count under them.
class ListPane final : public QWidget
{
    Q_OBJECT
public:
    ListPane(SearchBox *search, QAbstractItemView *view, QLabel *count, QWidget *parent = nullptr);

    /// A switch between the search and the list, for what the list shows.
    void addSwitch(QWidget *control);
};
