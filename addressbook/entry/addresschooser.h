// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

#include <functional>

class NameChoice;
class NameList;
class NameListView;
class QLabel;
class QModelIndex;
class SearchBox;

/// A small panel over the window in which a name is chosen by typing a part of it. It tells below the list
/// what choosing would do. Esc, a click elsewhere and leaving it by Tab close it.
class AddressChooser final : public QFrame
{
    Q_OBJECT
public:
    /// What is told of a line of the list: what it gives, and what that takes the place of.
    struct Outcome {
        QString gives;
        QString replaces;
    };
    using Tell = std::function<Outcome(const QString &line)>;

    /// Floats over `window`.
    AddressChooser(QWidget *window, Tell tell);

    /// Opens below `opener`, which gets the focus back; `first` and `without` as in `NameChoice`.
    void open(QWidget *opener, const NameList &names, int first, int without);
    void dismiss();

signals:
    void chosen(const QString &line);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeWords();
    void place();
    void narrow();
    void tell(const QModelIndex &current);
    void choose();
    bool keyPressed(int key);
    void moveBy(int rows);

    Tell m_tell;
    QWidget *m_opener = nullptr;
    NameChoice *m_names;
    SearchBox *m_search;
    NameListView *m_view;
    QLabel *m_gives;
    QLabel *m_replaces;
    QWidget *m_words; ///< the two, as high as the longest of them need
};
