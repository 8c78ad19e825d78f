// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/spellhighlighter.h"

#include <QPlainTextEdit>

#include <utility>

class PagePictures;
class PictureScroll;

/// The page that one writes on: plain text whose light marks are shown as one types, at most 72 characters
/// wide, with pictures at the lines that name them. Tab leaves it. Each text has a document of its own, which
/// knows what can be undone in it.
class JournalText final : public QPlainTextEdit
{
    Q_OBJECT
public:
    static constexpr int mostCharacters = 72; ///< across

    JournalText(PagePictures &pictures, QWidget *parent);

    /// How the lines are shown; asked again when the colours change.
    LineStyles styles() const;

    /// A document with `text`, which belongs to this.
    QTextDocument *makeDocument(const QString &text);
    void showDocument(QTextDocument *document);
    /// The text as it was typed: blanks that do not break stay what they are.
    static QString textOf(const QTextDocument &document);
    QString text() const { return textOf(*document()); }
    /// Puts another text in the place of what is shown, as far as they differ, in a step that can be undone.
    void replaceText(const QString &text);

    void toggleBold();
    void toggleItalic();
    void toggleHeading();
    void toggleList();
    /// Puts `line` into a line of its own below the cursor's, which goes behind it.
    void insertLine(const QString &line);
    /// Marks what was found until the search is over or something is typed, and goes to the first of it.
    void showFound(const QList<std::pair<qsizetype, qsizetype>> &places);
    /// Of the line in which the cursor stands; 0 for none.
    int pictureAtCursor() const;

signals:
    /// Another one, or in other colours.
    void documentShown();
    /// The cursor came to a picture, or left one.
    void pictureAtCursorChanged();
    /// Something was dropped or pasted that may be a picture.
    void pictureGiven(const QMimeData *data);

protected:
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    QMimeData *createMimeDataFromSelection() const override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void apply(void (*change)(QTextCursor &, const QString &), const QString &sign);
    void setMargins();
    void cursorMoved();
    void pictureChanged(int number);
    void showCursor();
    void paintPicture(QPainter &painter, const QTextBlock &line, const QRectF &place) const;

    PagePictures &m_pictures;
    PictureScroll *m_scroll;
    bool m_isCursorInSight = true; ///< as it was painted last
    QSize m_size;
    int m_pictureAtCursor = 0;
};
