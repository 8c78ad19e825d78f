// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QWidget>

class ButtonRow;
class DayFacts;
class JournalText;
class OpenDay;
class PagePictures;
class QLabel;
class StepTitle;
class TagBox;
struct Program;

/// The page of a day: its date, what else is known of it, the text, its tags.
class DayPage final : public QWidget
{
    Q_OBJECT
public:
    explicit DayPage(const Program &program, QWidget *parent = nullptr);

    JournalText &text() const { return *m_text; }
    TagBox &tags() const { return *m_tags; }
    PagePictures &pictures() const { return *m_pictures; }
    DayFacts &facts() const { return *m_facts; }
    ButtonRow &foot() const { return *m_foot; }

    /// Shows what is known of the day that is open.
    void follow(const OpenDay &day);
    /// What is amiss with the day in its file; empty where nothing is.
    void setDamage(const QString &words);
    /// What the box of the tags offers.
    void setKnownTags(const QStringList &tags);
    /// Nothing of any day is left.
    void forget();

signals:
    void stepped(int days);
    void todayRequested();

private:
    void layOut();

    const Program &m_program;
    PagePictures *m_pictures;
    StepTitle *m_title;
    QLabel *m_written;
    QLabel *m_damage;
    DayFacts *m_facts;
    JournalText *m_text;
    TagBox *m_tags;
    QLabel *m_words;
    ButtonRow *m_foot;
};
