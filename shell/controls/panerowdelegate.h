// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

#include <functional>

class QLineEdit;

/// Rows of `PaneRows`: the name, a small picture before it where there is one, and its count at the right.
class PaneRowDelegate final : public QStyledItemDelegate
{
    Q_OBJECT
public:
    static constexpr int pictureSide = 24; ///< of what stands before a name

    using MakeBox = std::function<QLineEdit *(QWidget *parent)>;

    /// `makeBox` makes the box in which a name is typed over, where one can be.
    explicit PaneRowDelegate(QObject *parent, MakeBox makeBox = {});

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

private:
    MakeBox m_makeBox;
};
