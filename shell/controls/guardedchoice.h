// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QVariant>

#include <functional>

class QAbstractItemView;

/// What a list shows of its rows, one at a time, each known by what it holds under a role. Another one takes
/// the place of the shown one only when that may be.
class GuardedChoice final : public QObject
{
    Q_OBJECT
public:
    /// What stands before another row takes the place of the shown one.
    struct Guard {
        std::function<bool()> isModified;
        std::function<bool()> mayReplace; ///< asks the user when it is modified
    };

    /// Belongs to `view`, which has its model already and whose rows are chosen one at a time.
    GuardedChoice(QAbstractItemView *view, int keyRole, Guard guard);

    /// What the shown row holds; invalid without one.
    QVariant shown() const { return m_shown; }
    /// Marks the row that holds `key` as the shown one, or none. Asks nothing.
    void show(const QVariant &key);
    /// The rows become others by what `change` does; none is shown then.
    void changeRows(const std::function<void()> &change);

signals:
    /// The row that holds `key` is to be shown; what was typed may go.
    void chosen(const QVariant &key);

private:
    QModelIndex rowOf(const QVariant &key) const;
    QVariant selected() const;
    void select(const QVariant &key);
    void selectionMoved();
    void takeSelected();

    QAbstractItemView *m_view;
    int m_keyRole;
    Guard m_guard;
    QVariant m_shown;
    bool m_isFollowing = true; ///< a change of the selection shows its row
    bool m_isAsking = false;   ///< a question about unsaved changes is about to be asked
};
