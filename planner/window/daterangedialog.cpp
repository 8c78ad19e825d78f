// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/daterangedialog.h"

#include "planner/model/lines.h"
#include "planner/model/messages.h"
#include "shell/controls/datebox.h"
#include "shell/look/theme.h"

#include <QHBoxLayout>

using namespace Qt::Literals::StringLiterals;

DateRangeDialog::DateRangeDialog(QDate from, QDate to, const DateReading &reading, QWidget *parent)
    : QDialog(parent)
    , m_fromBox(named(new DateBox(reading, nullptr, this), u"rangeFrom"_s))
    , m_toBox(named(new DateBox(reading, nullptr, this), u"rangeTo"_s))
    , m_hint(makeQuietLabel({}, this))
    , m_style(reading.style)
    , m_range(from, to)
{
    setObjectName(u"dateRangeDialog"_s);
    setWindowTitle(u"Print Dates"_s);
    setPalette(Theme::of(this).panelPalette());
    auto *boxes = new QHBoxLayout;
    boxes->setSpacing(12);
    for (const auto &[box, caption, date] :
         {std::tuple{m_fromBox, u"From"_s, from}, std::tuple{m_toBox, u"To"_s, to}}) {
        box->setDate(date);
        connect(box, &FieldBox::refused, m_hint, &QLabel::setText);
        boxes->addLayout(labelled(caption, box));
    }
    QPushButton *ok = makeButton(u"rangeOk"_s, u"OK"_s, this, ButtonKind::Main);
    QPushButton *cancel = makeButton(u"rangeCancel"_s, u"Cancel"_s, this);
    ok->setDefault(true);
    ok->setMinimumWidth(88);
    auto *foot = new QHBoxLayout;
    foot->addStretch(1);
    foot->addWidget(ok);
    foot->addWidget(cancel);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 20, 24, 20);
    rows->setSpacing(12);
    rows->addWidget(makeHeading(PlannerMessages::whichDates(), this));
    rows->addLayout(boxes);
    rows->addWidget(m_hint);
    rows->addLayout(foot);
    connect(ok, &QPushButton::clicked, this, &DateRangeDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    m_fromBox->selectAll();
}

void DateRangeDialog::accept()
{
    for (DateBox *box : {m_fromBox, m_toBox}) {
        const auto date = box->date();
        if (!date || !CalendarDates::has(*date)) {
            m_hint->setText(date ? PlannerLines::beyondDates(m_style)
                                 : PlannerLines::noSuchDate(box->text()));
            box->setFocus();
            return;
        }
        (box == m_fromBox ? m_range.first : m_range.second) = *date;
    }
    // Whichever way round they were typed.
    if (m_range.second < m_range.first)
        std::swap(m_range.first, m_range.second);
    QDialog::accept();
}
