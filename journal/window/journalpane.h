// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QWidget>

#include <utility>

class HitList;
class Journal;
class JournalFinder;
class MonthView;
class OnThisDay;
class PanelColors;
class QLabel;
class QStackedWidget;
class SearchBox;
class TagsList;
struct Program;

/// The pane beside the page: the search over all years, and while nothing is searched for the calendar, the
/// same day of other years and the tags.
class JournalPane final : public QWidget
{
    Q_OBJECT
public:
    JournalPane(const Program &program, PanelColors &colors, Journal &journal, QWidget *parent);

    /// The day that the page shows.
    void setDate(QDate date);
    /// Something was written, or another year was read.
    void refresh();
    /// Puts the cursor into the search.
    void startSearch();
    void clearSearch();
    /// Where the words that are looked for stand in a text.
    QList<std::pair<qsizetype, qsizetype>> placesIn(const QString &text) const;
    /// Nothing of any entry is left.
    void forget();
    /// How wide it would like to be in a window of this size.
    static int suitableWidth(QSize window);

signals:
    void dateChosen(QDate date);
    /// A hit was opened.
    void hitOpened(QDate date);
    /// The user wants to go on in the text.
    void entered();
    /// A search has begun; the day that is shown then is the one to come back to.
    void searchBegun();
    void searchLeft();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makePanels(const Program &program, PanelColors &colors);
    QWidget *makeHits();
    void showMarks();
    void shareRoom();
    void announce();
    void search(const QString &text);
    void showHits();

    const Program &m_program;
    Journal &m_journal;
    SearchBox *m_search;
    QStackedWidget *m_stack;
    MonthView *m_calendar = nullptr;
    OnThisDay *m_onThisDay = nullptr;
    TagsList *m_tags = nullptr;
    HitList *m_hits = nullptr;
    QLabel *m_count = nullptr;
    JournalFinder *m_finder;
    QDate m_announced;
    bool m_isSetting = false;
};
