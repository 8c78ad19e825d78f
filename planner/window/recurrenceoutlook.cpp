// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/recurrenceoutlook.h"

#include "planner/model/lines.h"
#include "shell/controls/controls.h"
#include "shell/core/slicedwork.h"
#include "shell/look/theme.h"

#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

RecurrenceOutlook::RecurrenceOutlook(const DataFolder &folder, const DateStyle &style, QWidget *parent)
    : QWidget(parent)
    , m_folder(folder)
    , m_style(style)
    , m_work(new SlicedWork(this))
    , m_sum(named(new QLabel(this), u"outlookSum"_s))
    , m_full(named(new QLabel(this), u"outlookFull"_s))
    , m_dates(named(makeQuietLabel({}, this), u"outlookDates"_s))
    , m_removal(named(makeQuietLabel({}, this), u"outlookRemoval"_s))
{
    m_sum->setFont(TypeScale::strong());
    m_full->setFont(TypeScale::strong()); // in the panel's ink, which any color of a user leaves readable
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(makeHeading(u"What this does"_s, this));
    for (QLabel *label : {m_sum, m_full, m_dates, m_removal}) {
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::NoTextInteraction);
        column->addWidget(label);
    }
    column->addStretch(1);
    connect(m_work, &SlicedWork::finished, this, [this](bool wasStopped) {
        if (!wasStopped)
            tell();
    });
}

void RecurrenceOutlook::show(const Appointment &appointment, const Recurrence &recurrence, bool hasKind)
{
    stop();
    m_hasKind = hasKind;
    m_preview = std::make_unique<RecurrencePreview>(m_folder, appointment, recurrence);
    m_work->start([this] { return m_preview->step(); });
}

void RecurrenceOutlook::showReason(const QString &reason)
{
    stop();
    m_sum->setText(reason);
    m_sum->show();
    for (QLabel *label : {m_full, m_dates, m_removal})
        label->hide();
    emit told();
}

QString RecurrenceOutlook::sum() const
{
    return m_sum->text();
}

void RecurrenceOutlook::stop()
{
    if (m_work->isRunning())
        m_work->stop();
}

void RecurrenceOutlook::setTall(bool isTall)
{
    if (std::exchange(m_isTall, isTall) != isTall && m_preview && !m_work->isRunning())
        tell();
}

QString RecurrenceOutlook::dateText(QDate date) const
{
    return QLocale::c().toString(date, u"ddd "_s) + Dates::shortWithYear(date, m_style);
}

void RecurrenceOutlook::tell()
{
    const RecurrencePreview &seen = *m_preview;
    if (!m_hasKind)
        m_sum->setText(PlannerLines::noKindYet());
    else if (seen.count() == 0)
        m_sum->setText(PlannerLines::noDateInRange());
    else
        m_sum->setText(
            PlannerLines::dates(seen.count(), dateText(seen.firstDate()), dateText(seen.lastDate())));
    m_sum->setVisible(m_isTall || !m_hasKind);
    m_full->setText(PlannerLines::fullDates(seen.full()));
    m_full->setVisible(m_hasKind && seen.full() > 0);
    tellDates();
    m_removal->setText(
        PlannerLines::wouldRemove(seen.there(), dateText(seen.firstThere()), dateText(seen.lastThere())));
    m_removal->show();
    emit told();
}

void RecurrenceOutlook::tellDates()
{
    QStringList lines;
    constexpr qsizetype twoLinesOfDates = 4;
    const QList<RecurrencePreview::Visit> &visits = m_preview->first();
    for (const RecurrencePreview::Visit &visit :
         visits.first(std::min(visits.size(), m_isTall ? visits.size() : twoLinesOfDates)))
        lines << dateText(visit.date) + PlannerLines::dateMark(visit.result);
    if (const qsizetype more = m_preview->count() - lines.size(); more > 0)
        lines << PlannerLines::andMore(int(more));
    // In a line, no date is broken at its end.
    if (!m_isTall)
        lines.replaceInStrings(u" "_s, QString(QChar::Nbsp));
    m_dates->setText(lines.join(m_isTall ? u"\n"_s : u" \u00b7 "_s));
    m_dates->setVisible(m_hasKind && !lines.isEmpty());
}
