// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journaltext.h"

#include "journal/window/markediting.h"
#include "journal/window/pagepictures.h"
#include "journal/window/pagetextlayout.h"
#include "journal/window/picturescroll.h"
#include "shell/core/lightmarks.h"
#include "shell/look/theme.h"

#include <QAbstractTextDocumentLayout>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QTextBlock>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double letterFactor = 1.15; ///< beside the letters of boxes
constexpr double headingFactor = 1.3;
constexpr int leastMargin = 12;
constexpr int barWidth = 2;
constexpr qsizetype mostFound = 1000; ///< that are marked

QFont pageFont()
{
    QFont font = TypeScale::body();
    font.setPointSizeF(font.pointSizeF() * letterFactor);
    return font;
}

/// The number of the picture that a line names; most lines are too long to ask.
int pictureIn(const QTextBlock &line)
{
    constexpr int longest = 20;
    return line.length() <= longest ? LightMarks::of(line.text()).picture : 0;
}

QTextCharFormat formatOf(const MarkedRun &run, bool isHeading)
{
    QTextCharFormat format;
    if (isHeading)
        format.setFontPointSize(pageFont().pointSizeF() * headingFactor);
    if (run.isBold || isHeading)
        format.setFontWeight(run.isBold ? QFont::Bold : QFont::DemiBold);
    format.setFontItalic(run.isItalic);
    return format;
}

} // namespace

JournalText::JournalText(PagePictures &pictures, QWidget *parent)
    : QPlainTextEdit(parent)
    , m_pictures(pictures)
    , m_scroll(new PictureScroll(
          *this, [this](const QTextBlock &line) { return m_pictures.height(pictureIn(line)); }))
{
    setObjectName(u"entryText"_s);
    setAccessibleName(u"Entry"_s);
    setFrameShape(QFrame::NoFrame);
    // A page and no box: the cursor tells where one types.
    setStyleSheet(
        u"QPlainTextEdit, QPlainTextEdit:focus { background: palette(base); border: 0; padding: 0; }"_s);
    setFont(pageFont());
    setTabChangesFocus(true);
    setCursorWidth(2);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (document()->isModified() && !extraSelections().isEmpty())
            setExtraSelections({});
    });
    QTextDocument *first = makeDocument({});
    setDocument(first);
    connect(this, &QPlainTextEdit::cursorPositionChanged, viewport(), qOverload<>(&QWidget::update));
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &JournalText::cursorMoved,
            Qt::QueuedConnection); // behind what the box itself does for it
    connect(&m_pictures, &PagePictures::changed, this, &JournalText::pictureChanged);
    connect(m_scroll, &PictureScroll::hiddenChanged, this, &JournalText::setMargins);
}

void JournalText::cursorMoved()
{
    showCursor();
    if (const int number = pictureAtCursor(); std::exchange(m_pictureAtCursor, number) != number)
        emit pictureAtCursorChanged();
}

void JournalText::pictureChanged(int number)
{
    const bool wasInSight = m_isCursorInSight;
    for (QTextBlock line = document()->begin(); line.isValid(); line = line.next()) {
        if (pictureIn(line) == number)
            document()->markContentsDirty(line.position(), line.length());
    }
    // The box looks how far it can scroll when the number of lines changes, and only then by itself.
    QAbstractTextDocumentLayout *layout = document()->documentLayout();
    emit layout->documentSizeChanged(layout->documentSize());
    m_scroll->settle();
    if (wasInSight)
        showCursor();
    viewport()->update();
}

void JournalText::showCursor()
{
    if (m_pictures.pictures().isEmpty())
        ensureCursorVisible();
    else
        m_scroll->showCursor();
}

LineStyles JournalText::styles() const
{
    return [this](const QString &line) {
        QList<QTextLayout::FormatRange> ranges;
        const MarkedLine marked = LightMarks::of(line);
        const bool isHeading = marked.kind == MarkedLine::Heading;
        QTextCharFormat sign;
        sign.setForeground(Theme::of(this).quiet); // on the field, whatever ink the panel has
        if (marked.kind == MarkedLine::Picture)
            return QList<QTextLayout::FormatRange>{{0, int(line.size()), sign}};
        if (marked.begin > 0)
            ranges.append({0, int(marked.begin), sign});
        for (const MarkedRun &run : marked.runs) {
            if (isHeading || run.isBold || run.isItalic)
                ranges.append({int(run.at), int(run.length), formatOf(run, isHeading)});
        }
        for (const auto &[at, length] : marked.signs)
            ranges.append({int(at), int(length), sign});
        return ranges;
    };
}

QTextDocument *JournalText::makeDocument(const QString &text)
{
    auto *made = new QTextDocument(this);
    made->setDocumentLayout(new PageTextLayout(
        made, [this](const QTextBlock &line) { return m_pictures.height(pictureIn(line)); }));
    made->setDefaultFont(font());
    QTextOption wrapping = made->defaultTextOption();
    wrapping.setWrapMode(wordWrapMode());
    made->setDefaultTextOption(wrapping);
    made->setDocumentMargin(leastMargin);
    made->setPlainText(text);
    return made;
}

void JournalText::showDocument(QTextDocument *shown)
{
    m_scroll->reset();
    setDocument(shown);
    setExtraSelections({});
    emit documentShown();
}

QString JournalText::textOf(const QTextDocument &document)
{
    QString text = document.toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return text;
}

void JournalText::replaceText(const QString &text)
{
    const QString before = this->text();
    const qsizetype shorter = std::min(before.size(), text.size());
    qsizetype same = 0;
    while (same < shorter && before[same] == text[same])
        ++same;
    qsizetype sameAtEnd = 0;
    while (sameAtEnd < shorter - same &&
           before[before.size() - 1 - sameAtEnd] == text[text.size() - 1 - sameAtEnd])
        ++sameAtEnd;
    QTextCursor cursor(document());
    cursor.setPosition(int(same));
    cursor.setPosition(int(before.size() - sameAtEnd), QTextCursor::KeepAnchor);
    cursor.insertText(text.sliced(same, text.size() - same - sameAtEnd));
}

void JournalText::apply(void (*change)(QTextCursor &, const QString &), const QString &sign)
{
    if (isReadOnly())
        return;
    QTextCursor cursor = textCursor();
    change(cursor, sign);
    setTextCursor(cursor);
    setFocus();
}

void JournalText::toggleBold()
{
    apply(MarkEditing::toggle, u"**"_s);
}

void JournalText::toggleItalic()
{
    apply(MarkEditing::toggle, u"*"_s);
}

void JournalText::toggleHeading()
{
    apply(MarkEditing::toggleLead, u"# "_s);
}

void JournalText::toggleList()
{
    apply(MarkEditing::toggleLead, u"- "_s);
}

void JournalText::insertLine(const QString &line)
{
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.clearSelection();
    cursor.movePosition(QTextCursor::EndOfBlock);
    if (!cursor.block().text().isEmpty())
        cursor.insertBlock();
    cursor.insertText(line + u'\n');
    cursor.endEditBlock();
    setTextCursor(cursor);
}

void JournalText::showFound(const QList<std::pair<qsizetype, qsizetype>> &places)
{
    QList<QTextEdit::ExtraSelection> found;
    QTextEdit::ExtraSelection mark;
    mark.cursor = textCursor();
    mark.format.setBackground(Theme::of(this).mark);
    mark.format.setForeground(Theme::of(this).text);
    for (const auto &[at, length] : places.first(std::min(places.size(), mostFound))) {
        mark.cursor.setPosition(int(at));
        if (found.isEmpty())
            setTextCursor(mark.cursor);
        mark.cursor.setPosition(int(at + length), QTextCursor::KeepAnchor);
        found.append(mark);
    }
    setExtraSelections(found);
}

int JournalText::pictureAtCursor() const
{
    const int number = pictureIn(textCursor().block());
    return m_pictures.has(number) ? number : 0;
}

bool JournalText::canInsertFromMimeData(const QMimeData *source) const
{
    return source->hasText() || source->hasImage() || source->hasUrls();
}

/// The words alone, without foreign letters and colours.
void JournalText::insertFromMimeData(const QMimeData *source)
{
    if (isReadOnly())
        return;
    if (source->hasUrls() || (source->hasImage() && !source->hasText())) {
        emit pictureGiven(source);
        return;
    }
    textCursor().insertText(MarkEditing::cleaned(source->text()));
    ensureCursorVisible();
}

QMimeData *JournalText::createMimeDataFromSelection() const
{
    auto *data = new QMimeData;
    QString text = textCursor().selectedText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    data->setText(text);
    return data;
}

void JournalText::keyPressEvent(QKeyEvent *event)
{
    const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
    QTextCursor cursor = textCursor();
    if (!isReadOnly() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
        (held == Qt::NoModifier || held == Qt::ShiftModifier)) {
        if (held == Qt::NoModifier && MarkEditing::mayGoOn(cursor))
            MarkEditing::goOn(cursor);
        else
            cursor.insertBlock();
        setTextCursor(cursor);
        return;
    }
    const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (isTab && (held & Qt::ControlModifier)) {
        const bool isBack = event->key() == Qt::Key_Backtab || (held & Qt::ShiftModifier);
        if (!isReadOnly())
            MarkEditing::indent(cursor, isBack ? -1 : 1);
        return;
    }
    // An access key that nothing has is no letter. (AltGr is Ctrl and Alt.)
    if ((held & Qt::AltModifier) && !(held & Qt::ControlModifier) && !event->text().isEmpty()) {
        event->ignore();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void JournalText::paintEvent(QPaintEvent *event)
{
    QPlainTextEdit::paintEvent(event);
    m_isCursorInSight = cursorRect().intersects(viewport()->rect());
    QPainter painter(viewport());
    QRectF place = blockBoundingGeometry(firstVisibleBlock()).translated(contentOffset());
    for (QTextBlock line = firstVisibleBlock(); line.isValid() && place.top() <= viewport()->height();
         line = line.next()) {
        place.setHeight(blockBoundingRect(line).height());
        if (m_pictures.has(pictureIn(line)))
            paintPicture(painter, line, place);
        place.translate(0, place.height());
    }
    if (hasFocus())
        painter.fillRect(QRect(0, 0, barWidth, viewport()->height()), Theme::of(this).accent);
}

/// Where the cursor is elsewhere, its caption stands in the place of the line that names the picture.
void JournalText::paintPicture(QPainter &painter, const QTextBlock &line, const QRectF &place) const
{
    const int number = pictureIn(line);
    const double margin = document()->documentMargin();
    painter.setPen(Theme::of(this).quiet);
    painter.setFont(TypeScale::label());
    m_pictures.paint(painter, number, place.adjusted(margin, 0, -margin, 0));
    if (hasFocus() && textCursor().block() == line)
        return;
    QRectF caption = place.adjusted(0, m_pictures.height(number), 0, 0);
    caption.setRight(viewport()->width());
    painter.fillRect(caption, palette().base());
    caption.adjust(margin, 0, -margin, 0);
    painter.drawText(
        caption, Qt::AlignLeft | Qt::AlignTop,
        painter.fontMetrics().elidedText(m_pictures.caption(number), Qt::ElideRight, int(caption.width())));
}

void JournalText::resizeEvent(QResizeEvent *event)
{
    const bool wasInSight = m_isCursorInSight;
    setMargins();
    QPlainTextEdit::resizeEvent(event);
    if (std::exchange(m_size, size()) == size())
        return; // the part that is seen alone
    m_scroll->settle();
    if (wasInSight)
        showCursor();
}

/// What is wider than lines may be is margin.
void JournalText::setMargins()
{
    const int widest = mostCharacters * fontMetrics().averageCharWidth() + 2 * leastMargin;
    const int room = contentsRect().width() - 20; // a scroll bar may come
    const int margin = std::max(0, (room - widest) / 2);
    setViewportMargins(margin, -m_scroll->hidden(), margin, 0);
    // A picture with its caption and a line above fits into a low page too.
    const int high = contentsRect().height() - 2 * leastMargin - 2 * fontMetrics().lineSpacing();
    m_pictures.setRoom({std::min(widest, room) - 2 * leastMargin, high}, devicePixelRatioF());
}

void JournalText::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        emit documentShown(); // in other colours
    if (event->type() == QEvent::ApplicationFontChange)
        setFont(pageFont());
    if (event->type() == QEvent::FontChange) {
        for (QTextDocument *document : findChildren<QTextDocument *>(QString(), Qt::FindDirectChildrenOnly))
            document->setDefaultFont(font());
        setMargins();
    }
}
