// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/sheetmaker.h"

#include "calendar/model/calendaredits.h"
#include "calendar/model/calendarpages.h"
#include "calendar/window/windowlines.h"
#include "shell/pages/gridlayout.h"
#include "shell/pictures/keptpictures.h"
#include "shell/preview/previewpane.h"
#include "shell/program/program.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize photoPixels(1400, 1400); ///< of a photo on the screen

int indexOf(const WallCalendar &calendar, QDate month)
{
    return (month.year() - calendar.from.year()) * 12 + month.month() - calendar.from.month();
}

bool hasRoomForLines(CalendarLayout layout)
{
    return layout != CalendarLayout::Year && layout != CalendarLayout::Pocket;
}

SheetPlan::Cell cellOf(const WallCalendar &calendar, const LaidCell &laid, int firstRow)
{
    SheetPlan::Cell cell;
    cell.date = laid.cell->date;
    cell.row = firstRow + laid.row;
    cell.column = laid.column;
    cell.isOutside = laid.cell->isQuiet;
    cell.place = laid.rect;
    cell.content = laid.text;
    for (const LaidLine &line : laid.lines) {
        if (line.line->index >= 0)
            cell.lines.push_back({line.rect, line.line->index});
    }
    if (laid.block->form != GridForm::Days) {
        cell.all = CalendarEdits::visibleLines(calendar, cell.date);
        return cell;
    }
    for (const GridLine &line : laid.cell->lines) { // those of a person
        if (line.index >= 0)
            cell.all.append(line.index);
    }
    return cell;
}

/// The days of the small months, and behind them the months.
void addSmallMonths(const GridLayout &layout, SheetPlan &plan)
{
    std::vector<SheetPlan::SmallDay> months;
    for (const GridLayout::Block &block : layout.smallGrids()) {
        QDate first;
        for (const LaidCell &laid : block.laid.cells) {
            const QDate date = laid.cell->date;
            if (!date.isValid())
                continue;
            plan.smallDays.push_back({laid.rect, date});
            first = date.addDays(1 - date.day());
        }
        months.push_back({block.frame.rect(), first});
    }
    plan.smallDays.insert(plan.smallDays.end(), months.begin(), months.end());
}

SheetPlan planOf(const WallCalendar &calendar, const GridLayout &layout, QSizeF sheet)
{
    SheetPlan plan;
    plan.sheet = sheet;
    for (const GridLayout::Block &block : layout.blocks()) {
        int rows = 0;
        for (const LaidCell &laid : block.laid.cells) {
            plan.cells.push_back(cellOf(calendar, laid, plan.rows));
            plan.isByPerson = plan.isByPerson || laid.block->form == GridForm::Days;
            rows = std::max(rows, laid.row + 1);
            plan.columns = std::max(plan.columns, laid.column + 1);
        }
        for (const LaidSpan &span : block.laid.spans) {
            if (span.span->index >= 0)
                plan.bars.push_back({span.rect, span.span->index});
        }
        plan.rows += rows;
    }
    for (const GridRest::Entry &entry : layout.listed()) {
        if (entry.index >= 0)
            plan.listed.push_back({entry.rect, entry.date, entry.index});
    }
    addSmallMonths(layout, plan);
    for (SheetPlan::Cell &cell : plan.cells)
        cell.person = plan.isByPerson ? cell.column : 0;
    return plan;
}

} // namespace

SheetMaker::SheetMaker(const Program &program, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_loader(new PictureLoader(program.folder, this))
{}

SheetMaker::~SheetMaker() = default;

CalendarPages::Source SheetMaker::source(const CalendarLook &look) const
{
    const ProgramState &state = m_program.state;
    return {{CalendarPages::setup(look), state.dateStyle, m_program.clock.today(), state.familyName.text()},
            [&folder = m_program.folder](const QString &path) { return KeptPictures::locate(folder, path); }};
}

std::shared_ptr<const PageGrid> SheetMaker::grid(const WallCalendar &calendar, QDate month) const
{
    const CalendarPages::Source pages = source(calendar.look);
    const int index = indexOf(calendar, month);
    return hasRoomForLines(calendar.look.layout)
               ? CalendarPages::grid(calendar, CalendarPages::sheetOf(calendar, index), pages)
               : CalendarPages::monthGrid(calendar, index, pages);
}

std::shared_ptr<const CalendarSheet> SheetMaker::sheet(const WallCalendar &calendar, QDate month)
{
    const QSizeF points = CalendarPages::setup(calendar.look).sheet() * PageMetrics::pointsPerInch;
    const std::shared_ptr<const PageGrid> grid = this->grid(calendar, month);
    const auto layout = std::make_shared<const GridLayout>(grid, PreviewPane::usualFont());
    auto sheet = std::make_shared<CalendarSheet>();
    sheet->plan = planOf(calendar, *layout, points);
    sheet->leftOver = layout->restCount();
    sheet->description = CalendarWindowLines::sheetWords(calendar, month);
    const bool hasPhoto = grid->hasPhoto && !grid->photo.path.isEmpty();
    if (hasPhoto && grid->photo.path != m_photoPath)
        askForPhoto(grid->photo.path);
    const bool isRead = hasPhoto && !m_photo.image.isNull();
    sheet->paint = [layout, photo = isRead ? m_photo : LoadedPicture(),
                    isWaited = hasPhoto && m_isWaiting](QPainter &painter) {
        if (isWaited || !photo.image.isNull())
            layout->paint(painter, photo.image, photo.pixels);
        else
            layout->paint(painter);
    };
    return sheet;
}

/// One that cannot be read leaves a frame with its name, as on paper.
void SheetMaker::askForPhoto(const QString &path)
{
    m_photoPath = path;
    m_photo = {};
    m_isWaiting = true;
    m_loader->forget();
    m_loader->load(path, photoPixels, [this](const LoadedPicture &loaded) {
        m_photo = loaded;
        m_isWaiting = false;
        emit photoRead();
    });
}

QImage SheetMaker::picture(const WallCalendar &calendar, QDate month, QSize pixels) const
{
    const QSizeF points = CalendarPages::setup(calendar.look).sheet() * PageMetrics::pointsPerInch;
    const GridLayout layout(grid(calendar, month), PreviewPane::usualFont());
    const double scale = std::min(pixels.width() / points.width(), pixels.height() / points.height());
    QImage picture((points * scale).toSize(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.scale(scale, scale);
    painter.setRenderHint(QPainter::Antialiasing);
    layout.paint(painter);
    return picture;
}
