// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumbook.h"

#include "album/model/lines.h"
#include "album/model/papergrid.h"

#include <QMap>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using PageMetrics::lineHeight;

namespace {

using AlbumPages::Options;
using AlbumPages::Picture;

constexpr double chapterRoom = 1.15; ///< of its title
constexpr double runningRoom = 0.45; ///< of what stands at the head of other sheets
constexpr double footRoom = 0.5;
constexpr double storyShare = 0.62; ///< of the sheet for pictures, where stories stand below them
constexpr double textGap = 0.05;
constexpr int fourPictures = 4;
/// Chapters are marked from 1 on, pictures from here.
constexpr int firstPictureMark = 100000;

double marginOf(const PageSetup &setup)
{
    return setup.sheet().width() < 6.5 ? 0.6 : 1.0;
}

/// The sheet between head and foot.
QSizeF bodyOf(const PageSetup &setup)
{
    const double margin = marginOf(setup);
    const QSizeF sheet = setup.sheet();
    return {sheet.width() - 2 * margin, sheet.height() - 2 * margin - chapterRoom - footRoom};
}

} // namespace

AlbumBook::AlbumBook(const QString &title, const std::vector<Picture> &pictures, const Options &options,
                     const PageContext &context)
    : m_title(title)
    , m_pictures(pictures)
    , m_options(options)
    , m_context(context)
    , m_page(title)
{
    m_page.setMargin(marginOf(context.setup));
    m_page.setHeads(SheetHeads::Running).numberSheets(SheetNumbers::Book);
    findChapters();
}

/// None where the pictures do not stand by their dates, or all are of one time.
void AlbumBook::findChapters()
{
    QSet<QString> names;
    for (std::size_t i = 0; i < m_pictures.size(); ++i) {
        if (i > 0 && m_pictures[i].chapter == m_pictures[i - 1].chapter)
            continue;
        if (names.contains(m_pictures[i].chapter)) {
            m_chapters.clear();
            return;
        }
        names.insert(m_pictures[i].chapter);
        m_chapters.push_back(i);
    }
    if (m_chapters.size() == 1)
        m_chapters.clear();
}

QSizeF AlbumBook::placeSize(const Options &options, const PageSetup &setup)
{
    const QSizeF body = bodyOf(setup);
    return options.perBookSheet == fourPictures
               ? PaperGrid::ofBook(setup, marginOf(setup), 0, body.height()).picture
               : body;
}

QRectF AlbumBook::placePicture(Page &page, const Picture &picture, const QRectF &place)
{
    if (picture.path.isEmpty() || picture.pixels.isEmpty()) {
        page.placeRule(place);
        page.placeText(place.adjusted(textGap, textGap, -textGap, -textGap),
                       AlbumLines::notShown(picture.fileName, picture.reason), TextRole::Small,
                       Qt::AlignCenter);
        return place;
    }
    const QSizeF size = QSizeF(picture.pixels).scaled(place.size(), Qt::KeepAspectRatio);
    QRectF shown({}, size);
    shown.moveCenter(place.center());
    page.placePicture(shown, picture.path);
    return shown;
}

Page AlbumBook::page()
{
    addTitle();
    addContents();
    addPictures();
    return m_page.close(m_context.today, m_context.style);
}

/// "1974 to 2026", where the book has chapters; by hand they may stand in any order.
QString AlbumBook::years() const
{
    QMap<QString, QString> chapters; // by the first year of each
    for (const std::size_t begin : m_chapters) {
        const QString &chapter = m_pictures[begin].chapter;
        const auto digit = std::ranges::find_if(chapter, [](QChar letter) { return letter.isDigit(); });
        if (digit != chapter.end())
            chapters.insert(chapter.sliced(digit - chapter.begin()), chapter);
    }
    if (chapters.isEmpty())
        return {};
    QString last = chapters.last();
    last.front() = last.front().toLower(); // "the 1980s"
    return chapters.size() == 1 ? chapters.first() : u"%1 to %2"_s.arg(chapters.first(), last);
}

void AlbumBook::addTitle()
{
    const QSizeF sheet = m_context.setup.sheet();
    const double left = m_page.margin();
    const double width = sheet.width() - 2 * left;
    double y = sheet.height() * 0.16;
    const auto place = [&](const QString &text, TextRole role, int lines) {
        const double height = lines * lineHeight(role);
        if (!text.isEmpty())
            m_page.placeText({left, y, width, height}, text, role, Qt::AlignHCenter | Qt::AlignTop);
        y += text.isEmpty() ? 0 : height + 0.12;
    };
    place(m_context.family, TextRole::Chapter, 1);
    place(m_title, TextRole::Cover, 2);
    const std::size_t cover = std::size_t(m_options.cover) < m_pictures.size() ? m_options.cover : 0;
    if (!m_pictures.empty() && !m_pictures[cover].path.isEmpty()) {
        const double side = std::min(width, sheet.height() * 0.4);
        const QRectF shown =
            placePicture(m_page, m_pictures[cover], {(sheet.width() - side) / 2, y, side, side});
        y = shown.bottom() + 0.35;
    }
    place(years(), TextRole::Heading, 1);
    place(AlbumLines::pictures(qsizetype(m_pictures.size())), TextRole::Body, 1);
}

/// The chapters or, where there are none, the pictures that have a caption.
void AlbumBook::addContents()
{
    const bool hasCaptions =
        m_options.hasCaptions && m_options.perBookSheet == 1 &&
        std::ranges::any_of(m_pictures, [](const Picture &picture) { return !picture.caption.isEmpty(); });
    if (m_chapters.empty() && !hasCaptions)
        return;
    m_page.section(u"Contents"_s);
    m_page.columns({5, 2, 1}, {}, {Qt::AlignLeft, Qt::AlignLeft, Qt::AlignRight});
    for (std::size_t i = 0; i < m_chapters.size(); ++i) {
        const std::size_t end = i + 1 < m_chapters.size() ? m_chapters[i + 1] : m_pictures.size();
        m_page.rowWithSheets(
            {m_pictures[m_chapters[i]].chapter, AlbumLines::pictures(qsizetype(end - m_chapters[i])), {}},
            {int(i) + 1});
    }
    for (std::size_t i = 0; m_chapters.empty() && i < m_pictures.size(); ++i) {
        if (!m_pictures[i].caption.isEmpty())
            m_page.rowWithSheets(
                {m_pictures[i].caption, m_options.hasDates ? m_pictures[i].date : QString(), {}},
                {firstPictureMark + int(i)});
    }
}

void AlbumBook::addPictures()
{
    const bool hasChapters = !m_chapters.empty();
    const std::vector<std::size_t> begins = hasChapters ? m_chapters : std::vector<std::size_t>{0};
    const std::size_t step = m_options.perBookSheet == fourPictures ? fourPictures : 1;
    for (std::size_t chapter = 0; chapter < begins.size() && !m_pictures.empty(); ++chapter) {
        const std::size_t end = chapter + 1 < begins.size() ? begins[chapter + 1] : m_pictures.size();
        m_page.section(hasChapters ? m_pictures[begins[chapter]].chapter : u"Pictures"_s, int(chapter) + 1);
        for (std::size_t i = begins[chapter]; i < end; i += step) {
            if (i > begins[chapter])
                m_page.breakPage();
            if (step == 1)
                addSingle(m_pictures[i], firstPictureMark + int(i));
            else
                addFour(i, std::min(i + step, end), i == begins[chapter]);
        }
    }
}

void AlbumBook::addSingle(const Picture &picture, int mark)
{
    const QSizeF body = bodyOf(m_context.setup);
    const double text = 2 * lineHeight(TextRole::Heading) + 3 * lineHeight(TextRole::Small); // two of where
    const double height = picture.story.isEmpty() ? body.height() - text : body.height() * storyShare;
    if (picture.path.isEmpty())
        m_page.line(AlbumLines::notShown(picture.fileName, picture.reason), TextRole::Small);
    else
        m_page.figure(picture.path, {body.width(), height});
    // A picture without a caption is led to by its date or, without one, by nothing that can be seen.
    const bool hasCaption = m_options.hasCaptions && !picture.caption.isEmpty();
    const bool hasDate = m_options.hasDates && !picture.date.isEmpty();
    const bool hasWhere = m_options.hasCaptions && !picture.where.isEmpty();
    if (hasCaption)
        m_page.paragraph({.runs = {{.text = picture.caption}},
                          .role = TextRole::Heading,
                          .staysWithNext = hasDate || hasWhere || !picture.story.isEmpty(),
                          .mark = mark});
    if (hasDate)
        m_page.paragraph({.runs = {{.text = picture.date}}, .role = TextRole::Small});
    if (hasWhere)
        m_page.paragraph({.runs = {{.text = picture.where}}, .role = TextRole::Small});
    if (!picture.story.isEmpty())
        m_page.blankLine();
    addStory(picture, false);
}

void AlbumBook::addFour(std::size_t first, std::size_t end, bool beginsChapter)
{
    const auto begin = m_pictures.begin() + std::ptrdiff_t(first);
    const bool hasStories = std::any_of(begin, m_pictures.begin() + std::ptrdiff_t(end),
                                        [](const Picture &picture) { return !picture.story.isEmpty(); });
    const double height = bodyOf(m_context.setup).height();
    const double top = m_page.margin() + (beginsChapter ? chapterRoom : runningRoom);
    const PaperGrid grid =
        PaperGrid::ofBook(m_context.setup, m_page.margin(), top, hasStories ? height * storyShare : height);
    for (std::size_t i = first; i < end; ++i) {
        const Picture &picture = m_pictures[i];
        const QRectF place = grid.place(int(i - first));
        double y = placePicture(m_page, picture, place).bottom() + textGap;
        const auto addSmall = [&](const QString &text) {
            if (text.isEmpty())
                return;
            m_page.placeText({place.left(), y, place.width(), lineHeight(TextRole::Small)}, text,
                             TextRole::Small, Qt::AlignHCenter | Qt::AlignTop);
            y += lineHeight(TextRole::Small);
        };
        addSmall(m_options.hasDates ? picture.date : QString());
        addSmall(m_options.hasCaptions ? picture.where : QString());
        if (m_options.hasCaptions && !picture.caption.isEmpty())
            m_page.placeText({place.left(), y, place.width(), 2 * lineHeight(TextRole::Body)},
                             picture.caption, TextRole::Body, Qt::AlignHCenter | Qt::AlignTop);
    }
    m_page.belowPlaced();
    for (std::size_t i = first; i < end; ++i)
        addStory(m_pictures[i], true);
}

void AlbumBook::addStory(const Picture &picture, bool withCaption)
{
    bool isFirst = true;
    for (const QString &words : picture.story) {
        PageItem::Paragraph paragraph;
        if (isFirst && withCaption && !picture.caption.isEmpty())
            paragraph.runs.push_back({.text = picture.caption + u". "_s, .isBold = true});
        paragraph.runs.push_back({.text = words});
        m_page.paragraph(paragraph);
        isFirst = false;
    }
}
