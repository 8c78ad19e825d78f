// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

/// An entry of the manual's list: a title, and under it the words around what was searched for.
class HelpEntryDelegate final : public QStyledItemDelegate
{
    Q_OBJECT
public:
    static constexpr int contextRole = Qt::UserRole;
    static constexpr int excerptRole = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
