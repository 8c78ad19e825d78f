// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressviewer.h"

#include <QWidget>

#include <array>

class QButtonGroup;
class QComboBox;
class QPushButton;
class QVBoxLayout;
class SearchBox;

/// The left pane of the viewer: the search, the information to view, and whose names are shown.
class ViewerChoices final : public QWidget
{
    Q_OBJECT
public:
    explicit ViewerChoices(QWidget *parent = nullptr);

    QString searchText() const;
    void clearSearch();
    void focusSearch();

    Information information() const;
    DisplayRange::Kind rangeKind() const;
    /// The month in the box of `kind`; 0 when it names none.
    int month(DisplayRange::Kind kind) const;
    void focusMonth(DisplayRange::Kind kind);

    /// So wide that no choice is cut, with the bar that scrolls them.
    int leastWidth() const;
    int suitableWidth(QSize window) const;

signals:
    void searchTyped(const QString &text);
    void searchPressed();
    void informationChosen();
    void updateRequested();
    /// The key that leads from the search to the names was pressed.
    void leftForNames();

private:
    void addSearch(QVBoxLayout &column);
    void addInformation(QVBoxLayout &column);
    void addRange(QVBoxLayout &column);
    QComboBox *makeMonthBox(const QString &name, const QString &caption, DisplayRange::Kind kind);

    SearchBox *m_searchBox = nullptr;
    QButtonGroup *m_information = nullptr;
    QButtonGroup *m_range = nullptr;
    std::array<QComboBox *, 3> m_months{}; ///< by the kind of range; none for all
};
