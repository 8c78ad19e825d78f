// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

/// One page of the built-in manual.
struct ManualPage {
    int context; ///< the number by which windows ask for it
    QString title;
    QString html;
    QString text; ///< the same without marks, for searching
};

/// A page that holds the words of a search, with a few words around the first of them.
struct ManualHit {
    int context;
    QString title;
    QString excerpt;

    bool operator==(const ManualHit &) const = default;
};

/// The built-in manual: its pages in order of their contexts, and the search through them.
class Manual
{
public:
    /// `dataFolder` is named where a page tells the reader where the records are.
    explicit Manual(const QString &dataFolder);

    const QList<ManualPage> &pages() const { return m_pages; }

    /// The page of `context`; the overview when there is none.
    const ManualPage &page(int context) const;

    /// The pages that hold every word of `words`, whatever their case and also within longer words; pages
    /// with a word in their title come first. None when `words` is blank.
    QList<ManualHit> find(const QString &words) const;

    /// What a reader sees of `html`, in one line.
    static QString plainText(QString html);

private:
    QList<ManualPage> m_pages;
};
