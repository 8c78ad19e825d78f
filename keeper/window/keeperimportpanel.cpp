// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/keeperimportpanel.h"

#include "keeper/model/keeper.h"
#include "keeper/model/keepercsv.h"
#include "keeper/model/keeperxml.h"
#include "keeper/model/lines.h"
#include "keeper/window/windowlines.h"
#include "shell/controls/importtable.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"
#include "storage/sealing/freememory.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int measuredRows = 5000;
constexpr int widestWords = 480;
constexpr int inset = 32;

/// "User name: anne; in the file anne.lind". Of a secret no more is told than whether it is another.
QString besideLine(const KeeperImport::Beside &text)
{
    const auto shown = [&text](const QString &value) {
        return value.isEmpty() ? KeeperWindowLines::nothingThere()
               : text.isSecret ? KeeperLines::hidden()
                               : QString(value).replace(u'\n', u' ');
    };
    return KeeperWindowLines::beside(text.caption, shown(text.there), shown(text.inFile));
}

} // namespace

KeeperImportPanel::KeeperImportPanel(const KeeperDesk &desk)
    : ImportPreview({.name = u"keeperImport"_s,
                     .take = u"&Import"_s,
                     .filters = KeeperImport::filters(),
                     .hasColumns = true})
    , m_desk(desk)
    , m_beside(named(makeQuietLabel({}, this), u"importBeside"_s))
{
    m_beside->setWordWrap(true);
    m_beside->setMinimumHeight(3 * m_beside->fontMetrics().lineSpacing());
    m_beside->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto *form = new QWidget(this);
    auto *rows = new QVBoxLayout(form);
    rows->setContentsMargins({});
    rows->addWidget(m_beside);
    addForm(form);
    connect(view().selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &KeeperImportPanel::followLine);
}

bool KeeperImportPanel::open(const QString &path)
{
    m_refusal.clear();
    const auto bytes = contents(path);
    if (!bytes)
        return refuse(path);
    KeeperImport::There there{{}, [this](const QByteArray &id) { return m_desk.keeper.entry(id); }};
    for (const KeeperSummary &entry : m_desk.keeper.entries()) {
        if (!entry.isTrashed && entry.damagedPlace == 0)
            there.entries.append(entry);
    }
    m_csv = nullptr;
    if (KeeperXmlImport::isLikely(*bytes)) {
        auto file = std::make_unique<KeeperXmlImport>(*bytes, std::move(there));
        m_import = file.get();
        read(std::move(file));
    } else {
        auto file =
            std::make_unique<KeeperCsvImport>(*bytes, std::move(there), m_desk.program.state.dateStyle);
        m_import = file.get();
        m_csv = file.get();
        read(std::move(file));
    }
    return true;
}

/// A file that is too long: why it is not read stands where its lines would, and those of the file before
/// are gone.
bool KeeperImportPanel::refuse(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isFile() || file.size() <= mostBytes)
        return false;
    setTitle(file.fileName());
    m_refusal = tooLong(file.fileName());
    readNothing();
    return true;
}

void KeeperImportPanel::forget()
{
    m_refusal.clear();
    if (m_import)
        readNothing();
}

void KeeperImportPanel::readNothing()
{
    auto nothing = std::make_unique<KeeperCsvImport>(QByteArray(), KeeperImport::There(),
                                                     m_desk.program.state.dateStyle);
    m_import = nothing.get();
    m_csv = nothing.get();
    read(std::move(nothing));
    m_beside->clear();
}

QString KeeperImportPanel::hint() const
{
    if (!m_refusal.isEmpty())
        return m_refusal;
    if (!m_import)
        return {};
    if (!m_import->refusal().isEmpty())
        return m_import->refusal();
    if (m_csv && !m_csv->isReadable())
        return KeeperWindowLines::noColumnKnown();
    return KeeperWindowLines::importHint(m_csv ? m_csv->notUsed() : QStringList());
}

QString KeeperImportPanel::nothingToTake() const
{
    if (!m_refusal.isEmpty())
        return m_refusal;
    return m_import && !m_import->refusal().isEmpty() ? m_import->refusal() : ImportPreview::nothingToTake();
}

QString KeeperImportPanel::tooLong(const QString &name) const
{
    return KeeperWindowLines::tooLongToImport(name);
}

QString KeeperImportPanel::whyReadOnly() const
{
    return m_desk.program.folder.whyReadOnly();
}

void KeeperImportPanel::shown()
{
    ImportPreview::shown();
    m_beside->setVisible(m_import && hasDifferent());
    followLine();
}

/// What becomes of a line stands beside its title, in sight however many columns there are; those that are
/// empty in all lines stay away.
void KeeperImportPanel::shareWidth()
{
    for (int column = 0; m_import && column < KeeperImport::ColumnCount; ++column) {
        bool isEmpty = true;
        for (std::size_t line = 0; isEmpty && line < m_import->lineCount(); ++line)
            isEmpty = m_import->cell(line, column).isEmpty();
        view().setColumnHidden(column + 1, isEmpty); // the first has the line numbers
    }
    ImportPreview::shareWidth();
    QHeaderView &heading = *view().horizontalHeader();
    const int becomes = table().columnCount() - 1;
    if (becomes <= KeeperImport::Title + 1)
        return;
    heading.moveSection(heading.visualIndex(becomes), KeeperImport::Title + 2);
    const QFontMetrics body(TypeScale::body());
    int width = body.horizontalAdvance(u"What becomes of it"_s);
    for (int row = 0; row < std::min(table().rowCount(), measuredRows); ++row)
        width = std::max(width, body.horizontalAdvance(table().index(row, becomes).data().toString()));
    view().setColumnWidth(becomes, std::min(width + inset, TypeScale::wide(widestWords)));
}

bool KeeperImportPanel::hasDifferent() const
{
    for (std::size_t line = 0; line < m_import->lineCount(); ++line) {
        if (m_import->line(line).state == IncomingEntry::Differs)
            return true;
    }
    return false;
}

/// What the chosen line has otherwise than the entry that is there.
void KeeperImportPanel::followLine()
{
    const int row = view().currentIndex().row();
    if (!m_import || row < 0) {
        m_beside->clear();
        return;
    }
    const std::size_t line = table().line(row);
    QStringList lines;
    for (const KeeperImport::Beside &text : m_import->beside(line)) {
        if (text.differs)
            lines.append(besideLine(text));
    }
    m_beside->setText(lines.join(u'\n'));
}

void KeeperImportPanel::take()
{
    QList<KeeperEntry> entries = m_import->result();
    if (!m_desk.keeper.saveAll(entries)) {
        emit said(KeeperWindowLines::notSaved());
        return;
    }
    leave();
    forget();
    FreeMemory::wipe();
    emit taken(KeeperWindowLines::broughtIn(entries.size()));
}
