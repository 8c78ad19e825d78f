// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/keeperprintpanel.h"

#include "keeper/window/windowlines.h"
#include "shell/core/dates.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

using Layout = KeeperPages::Options::Layout;

namespace {
constexpr qsizetype sheetsNamed = 8;
} // namespace

KeeperPrintPanel::KeeperPrintPanel(QWidget *parent)
    : TaskPanel(u"keeperPrintPanel"_s, u"Print Options"_s, parent)
    , m_which(new QButtonGroup(this))
    , m_layout(new QButtonGroup(this))
    , m_printed(named(makeQuietLabel({}, this), u"printedSheets"_s))
    , m_show(nullptr)
{
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(8);
    column->addWidget(makeHeading(u"Entries"_s, content));
    for (const Which which : {Chosen, Listed, All}) {
        auto *choice = named(new QRadioButton(content), u"printWhich_%1"_s.arg(int(which)));
        m_which->addButton(choice, which);
        column->addWidget(choice);
    }
    column->addSpacing(8);
    column->addWidget(makeHeading(u"How"_s, content));
    for (const auto &[layout, caption] :
         {std::pair(Layout::TwoToAPage, u"&Two to a page"_s), {Layout::List, u"As a l&ist"_s}}) {
        auto *choice = named(new QRadioButton(caption, content), u"printLayout_%1"_s.arg(int(layout)));
        m_layout->addButton(choice, int(layout));
        column->addWidget(choice);
    }
    m_layout->button(int(Layout::List))->setChecked(true);
    auto *hint = makeQuietLabel(KeeperWindowLines::secretsBesidePages(), content);
    hint->setWordWrap(true);
    column->addSpacing(8);
    column->addWidget(hint);
    m_printed->setWordWrap(true);
    column->addWidget(m_printed);
    column->addStretch(1);
    setContent(content);
    m_show = addButton(u"keeperPrintShow"_s, u"Show &Pages"_s, ButtonKind::Main);
    setLeaveButton(u"keeperPrintClose"_s, u"C&lose"_s);
    connect(m_show, &QPushButton::clicked, this, &KeeperPrintPanel::accepted);
}

void KeeperPrintPanel::start(int chosen, int listed, int all)
{
    const auto name = [this](Which which, const QString &caption, int count) {
        m_which->button(which)->setText(KeeperWindowLines::captionWithCount(caption, count));
        m_which->button(which)->setEnabled(count > 0);
    };
    name(Chosen, u"&Chosen in the list"_s, chosen);
    name(Listed, u"&All that the list shows"_s, listed);
    name(All, u"All ent&ries"_s, all);
    QAbstractButton *proposed = m_which->button(chosen > 0 ? Chosen : listed > 0 ? Listed : All);
    proposed->setChecked(true);
    setFocusProxy(proposed);
}

void KeeperPrintPanel::showPrinted(const QList<PrintedSheet> &sheets, DateStyle style)
{
    QStringList lines;
    for (auto sheet = sheets.rbegin(); sheet != sheets.rend() && lines.size() < sheetsNamed; ++sheet)
        lines.append(KeeperWindowLines::printedSheet(
            Dates::shortWithYear(sheet->time.toLocalTime().date(), style), sheet->what, sheet->titles));
    m_printed->setText(lines.isEmpty() ? QString() : KeeperWindowLines::printedBefore() + lines.join(u'\n'));
}

KeeperPrintPanel::Which KeeperPrintPanel::which() const
{
    return Which(std::max(0, m_which->checkedId()));
}

Layout KeeperPrintPanel::layoutOfPages() const
{
    return Layout(std::max(0, m_layout->checkedId()));
}
