// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photoshelf.h"
#include "shell/core/knownperson.h"

#include <QWidget>

#include <array>
#include <optional>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QScrollArea;
class TagBox;
class StarsBox;
struct Program;

/// What is known of the picture that is chosen, to be typed over: caption, people, date, place, tags, story
/// and rating. Of several pictures the boxes hold what they share; what is typed then is said of all of them,
/// and people and tags are added to what each of them has.
class PhotoDetails final : public QWidget
{
    Q_OBJECT
public:
    PhotoDetails(const Program &program, PhotoShelf &shelf, QWidget *parent = nullptr);

    /// Shows what is known of these; what was typed for others before is taken first.
    void show(const QList<int> &records);
    /// The records hold something else now.
    void refresh();
    /// Takes what was typed so far.
    void finish();
    /// For which pictures something typed was refused and still stands in its box; none otherwise.
    QList<int> refused() const;
    /// Goes back to the box in which it stands.
    void mend();
    /// Puts the cursor into the caption.
    void typeCaption();

signals:
    void said(const QString &line);
    /// Typing is over: the pictures are to have the focus again.
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    enum Field { Caption, People, Date, Place, Tags, FieldCount };

    void giveUp();
    void backTo(Field field);
    QLineEdit *makeBox(Field field);
    void layOut();
    QString textOf(const Photo &photo, Field field) const;
    /// What the pictures have in common; nothing where they differ.
    std::optional<QString> shared(Field field) const;
    QStringList sharedList(Field field) const;
    void showField(Field field);
    void showStory();
    void showFacts();
    void showPeople();
    void offerNames();
    void take(Field field);
    bool takeText(Field field, const QString &text);
    bool takeList(Field field, const QString &text);
    bool takeDate(const QString &text);
    void takeStory();
    void takeRating(int rating);
    bool change(const QString &what, const PhotoShelf::Edit &edit);
    QList<KnownPerson> persons() const;
    bool isList(Field field) const { return field == People || field == Tags; }

    const Program &m_program;
    PhotoShelf &m_shelf;
    QList<int> m_records;
    QLabel *m_title;
    QLabel *m_facts;
    std::array<QLineEdit *, FieldCount> m_boxes{};
    std::array<QString, FieldCount> m_shown; ///< as the boxes had it last from the records
    QLabel *m_ages;                          ///< or why no names are offered
    QLabel *m_dateWords;                     ///< where the date comes from, or why it is none
    QPlainTextEdit *m_story;
    QString m_shownStory;
    StarsBox *m_stars;
    QWidget *m_form;
    QScrollArea *m_scroll = nullptr;
    QLabel *m_nothing;
    bool m_isTaking = false;
    bool m_toldOfNames = false; ///< that the password keeps some back
};
