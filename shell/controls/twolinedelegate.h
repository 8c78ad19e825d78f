// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

/// A row of a list in two lines: what it is called, and below it quieter words, with a sign where something
/// is due. What is cut stands whole in the tool tip.
class TwoLineDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    enum Role {
        keyRole = Qt::UserRole, ///< what the model knows the row by
        wordsRole,              ///< the second line
        signRole,               ///< a `Sign`
        shorterRole,            ///< the words in short, for where they have too little room
        furtherRole             ///< the first of a function's own
    };
    enum Sign { NoSign, Due, Overdue };

    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    static constexpr int inset = 8;
    static constexpr int signSize = 16;
    static constexpr int signGap = 5;

    static int linesHeight();
    /// What both lines need to be whole, the second one in short.
    static int neededWidth(const QModelIndex &index);
    static void paintSign(QPainter *painter, QLatin1StringView icon, const QRect &place,
                          const QStyleOptionViewItem &row);

    /// Where the two lines stand in a row.
    virtual QRect linesPlace(const QRect &row, const QModelIndex &index) const;
    /// What the first line leaves free at its right for something beside it.
    virtual int besideTitle(const QModelIndex & /*index*/) const { return 0; }
    /// Paints what stands beside the lines, of which the first one is `title`.
    virtual void paintBeside(QPainter * /*painter*/, const QStyleOptionViewItem & /*row*/,
                             const QModelIndex & /*index*/, const QRect & /*title*/) const
    {}

private:
    void paintWords(QPainter *painter, const QStyleOptionViewItem &row, const QModelIndex &index,
                    QRect place) const;
};
