// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/photodetails.h"

#include "album/model/lines.h"
#include "album/model/photodatewords.h"
#include "album/model/photopeople.h"
#include "album/model/photoshelf.h"
#include "album/model/phototexts.h"
#include "album/window/starsbox.h"
#include "album/window/windowlines.h"
#include "shell/access/gate.h"
#include "shell/controls/bytelimit.h"
#include "shell/controls/controls.h"
#include "shell/controls/pastefilter.h"
#include "shell/controls/taborder.h"
#include "shell/controls/tagbox.h"
#include "shell/look/theme.h"
#include "shell/program/householdpersons.h"
#include "shell/program/program.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int storyLines = 4;
constexpr int besideBar = 16; ///< room for the scroll bar
constexpr int facesWidth = 248;

struct FieldFace {
    QLatin1StringView name;
    QLatin1StringView label;
    int bytes;
};

const std::array<FieldFace, 5> faces{{{"photoCaption"_L1, "&Caption"_L1, PhotoTexts::captionBytes},
                                      {"photoPeople"_L1, "Peop&le"_L1, PhotoTexts::peopleBytes},
                                      {"photoDate"_L1, "Taken"_L1, 0},
                                      {"photoPlace"_L1, "Place"_L1, PhotoTexts::placeBytes},
                                      {"photoTags"_L1, "Tags"_L1, PhotoTexts::tagsBytes}}};

/// Those who stay keep their place in the address book; the others are looked up there.
void setPeople(Photo &photo, const QStringList &names, const QList<KnownPerson> &known)
{
    const QList<PhotoPerson> before = photo.persons();
    QList<PhotoPerson> persons;
    persons.reserve(names.size());
    for (const QString &name : names) {
        const auto stays = std::ranges::find(before, name, &PhotoPerson::name);
        persons.append(stays != before.end() ? *stays : PhotoPeople::ofName(name, known));
    }
    photo.setPersons(persons);
}

} // namespace

PhotoDetails::PhotoDetails(const Program &program, PhotoShelf &shelf, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_shelf(shelf)
    , m_title(named(new ElidedLabel(this), u"photoTitle"_s))
    , m_facts(named(makeQuietLabel({}, this), u"photoFacts"_s))
    , m_ages(named(makeQuietLabel({}, this), u"photoAges"_s))
    , m_dateWords(named(makeQuietLabel({}, this), u"photoDateWords"_s))
    , m_story(named(new QPlainTextEdit(this), u"photoStory"_s))
    , m_stars(new StarsBox(u"photoStars"_s, this))
    , m_form(new QWidget(this))
    , m_nothing(named(makeQuietLabel(AlbumWindowLines::nothingChosen(), this), u"nothingChosen"_s))
{
    setObjectName(u"photoDetails"_s);
    m_title->setFont(TypeScale::group());
    for (QLabel *label : {m_facts, m_ages, m_dateWords, m_nothing})
        label->setWordWrap(true);
    m_nothing->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    for (int field = 0; field < FieldCount; ++field)
        m_boxes[std::size_t(field)] = makeBox(Field(field));
    m_story->setTabChangesFocus(true);
    m_story->installEventFilter(this);
    auto *limit = new ByteLimit(m_story, PhotoTexts::storyBytes);
    connect(limit, &ByteLimit::reached, this, [this] { emit said(AlbumWindowLines::textFull()); });
    m_stars->setAccessibleName(u"Rating"_s);
    connect(m_stars, &StarsBox::rated, this, &PhotoDetails::takeRating);
    layOut();
    show({});
}

QLineEdit *PhotoDetails::makeBox(Field field)
{
    const FieldFace &face = faces[std::size_t(field)];
    QLineEdit *box = nullptr;
    if (isList(field)) {
        box = new TagBox(face.name, this, u';');
        box->installEventFilter(this);
    } else {
        box = named(new QLineEdit(this), face.name);
        new PasteFilter(box, Characters::All);
    }
    if (face.bytes > 0) {
        auto *limit = new ByteLimit(box, face.bytes);
        connect(limit, &ByteLimit::reached, this, [this] { emit said(AlbumWindowLines::textFull()); });
    }
    connect(box, &QLineEdit::editingFinished, this, [this, field] {
        take(field);
        QMetaObject::invokeMethod( // behind the way that the key leads
            this, [this, field] { backTo(field); }, Qt::QueuedConnection);
    });
    return box;
}

void PhotoDetails::layOut()
{
    auto *rows = new QVBoxLayout(m_form);
    rows->setContentsMargins(0, 0, besideBar, 0);
    rows->setSpacing(10);
    for (int field = 0; field < FieldCount; ++field) {
        QLineEdit *box = m_boxes[std::size_t(field)];
        QLayout *lines = labelled(makeFieldLabel(faces[std::size_t(field)].label, box, m_form), box);
        if (field == People)
            lines->addWidget(m_ages);
        else if (field == Date)
            lines->addWidget(m_dateWords);
        rows->addLayout(static_cast<QVBoxLayout *>(lines));
    }
    rows->addLayout(labelled(makeFieldLabel(u"Sto&ry"_s, m_story, m_form), m_story));
    const int line = QFontMetrics(m_story->font()).lineSpacing();
    m_story->setFixedHeight(storyLines * line + 16); // it would ask for more than it needs
    rows->addLayout(labelled(makeFieldLabel(u"Rating"_s, m_stars, m_form), m_stars));
    rows->addStretch(1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(6);
    column->addWidget(m_title);
    column->addWidget(m_facts);
    column->addSpacing(4);
    column->addWidget(m_nothing);
    m_scroll = makeScrolling(m_form, u"photoScroll"_s, this);
    column->addWidget(m_scroll, 1);
    setMinimumWidth(facesWidth);
    setFocusProxy(m_boxes[Caption]);
    TabOrder::follow(*rows);
}

void PhotoDetails::show(const QList<int> &records)
{
    finish();
    if (records != m_records) { // what was refused goes with its picture
        for (QLineEdit *box : m_boxes)
            box->setModified(false);
        m_story->document()->setModified(false);
    }
    m_records = records;
    m_records.removeIf([this](int record) { return !m_shelf.photo(record); });
    refresh();
}

void PhotoDetails::refresh()
{
    if (m_isTaking)
        return;
    m_records.removeIf([this](int record) { return !m_shelf.photo(record); });
    const bool isAny = !m_records.isEmpty();
    m_nothing->setVisible(!isAny && !m_shelf.photos().empty());
    m_scroll->setVisible(isAny);
    m_title->setVisible(isAny);
    m_facts->setVisible(isAny);
    if (!isAny)
        return;
    const bool isLocked = !m_shelf.whyLocked().isEmpty();
    for (int field = 0; field < FieldCount; ++field) {
        showField(Field(field));
        m_boxes[std::size_t(field)]->setReadOnly(isLocked);
    }
    m_story->setReadOnly(isLocked);
    m_stars->setEnabled(!isLocked);
    showStory();
    showFacts();
    showPeople();
}

QString PhotoDetails::textOf(const Photo &photo, Field field) const
{
    switch (field) {
    case Caption:
        return photo.caption;
    case People:
        return photo.people;
    case Place:
        return photo.place;
    case Tags:
        return photo.tags;
    default:
        return PhotoDateWords::words(photo.date, m_program.state.dateStyle);
    }
}

std::optional<QString> PhotoDetails::shared(Field field) const
{
    const QString first = textOf(*m_shelf.photo(m_records.first()), field);
    for (const int record : m_records) {
        if (textOf(*m_shelf.photo(record), field) != first)
            return {};
    }
    return first;
}

/// The entries that each of the pictures has.
QStringList PhotoDetails::sharedList(Field field) const
{
    QStringList entries = PhotoTexts::list(textOf(*m_shelf.photo(m_records.first()), field));
    for (const int record : m_records) {
        if (entries.isEmpty())
            break;
        const QStringList own = PhotoTexts::list(textOf(*m_shelf.photo(record), field));
        entries.removeIf([&](const QString &entry) { return !own.contains(entry); });
    }
    return entries;
}

/// What is typed just now or was refused stays, and is compared with what the records hold when it is taken.
void PhotoDetails::showField(Field field)
{
    QLineEdit *box = m_boxes[std::size_t(field)];
    const std::optional<QString> text = shared(field);
    const bool isMixed = !text && !isList(field);
    const QString shown = isList(field) ? PhotoTexts::joined(sharedList(field)) : text.value_or(QString());
    m_shown[std::size_t(field)] = shown;
    if (!box->isModified() && box->text() != shown)
        box->setText(shown);
    box->setPlaceholderText(!text ? AlbumWindowLines::differing(isMixed) : QString());
}

void PhotoDetails::showStory()
{
    const QString first = m_shelf.photo(m_records.first())->story;
    const bool isShared =
        std::ranges::all_of(m_records, [&](int record) { return m_shelf.photo(record)->story == first; });
    const bool isTyped = m_story->document()->isModified();
    m_shownStory = isShared ? first : QString();
    m_story->setPlaceholderText(isShared ? QString() : AlbumWindowLines::differing(true));
    if (isTyped)
        return;
    if (m_story->toPlainText() != m_shownStory)
        m_story->setPlainText(m_shownStory);
    m_story->document()->setModified(false);
}

void PhotoDetails::showFacts()
{
    const Photo &first = *m_shelf.photo(m_records.first());
    const bool isOne = m_records.size() == 1;
    m_title->setText(isOne ? first.fileName() : AlbumLines::pictures(int(m_records.size())));
    m_facts->setText(isOne ? AlbumWindowLines::facts(first) : AlbumWindowLines::severalHint());
    m_facts->setToolTip(isOne ? first.path : QString());
    m_dateWords->setText(isOne ? AlbumWindowLines::dateFrom(first, m_program.clock.today()) : QString());
    m_dateWords->setVisible(!m_dateWords->text().isEmpty());
    const bool isRatedSame = std::ranges::all_of(
        m_records, [&](int record) { return m_shelf.photo(record)->rating == first.rating; });
    m_stars->show(isRatedSame ? first.rating : -1);
}

/// Those whom the address book knows, once its password was given where one guards it.
QList<KnownPerson> PhotoDetails::persons() const
{
    return HouseholdPersons::of(m_program, [this](int area) { return m_program.gate.wasPassed(area); });
}

/// How old they were, where that is known.
void PhotoDetails::showPeople()
{
    const Photo &first = *m_shelf.photo(m_records.first());
    const bool isOne = m_records.size() == 1 && !first.people.isEmpty();
    const QString words = isOne ? PhotoPeople::words(first, persons()) : QString();
    const bool haveAges = words.contains(u'(');
    m_ages->setText(haveAges ? words : QString());
    m_ages->setVisible(haveAges);
}

/// The names of the address book, then those that stand under other pictures.
void PhotoDetails::offerNames()
{
    const QList<KnownPerson> known = persons();
    QStringList names;
    for (const KnownPerson &person : known)
        names.append(person.name);
    QStringList tags;
    for (const Photo &photo : m_shelf.photos()) {
        names.append(PhotoTexts::list(photo.people));
        tags.append(PhotoTexts::list(photo.tags));
    }
    names.removeDuplicates();
    tags.removeDuplicates();
    static_cast<TagBox *>(m_boxes[People])->setOffered(names);
    static_cast<TagBox *>(m_boxes[Tags])->setOffered(tags);
    const auto wasPassed = [this](int area) { return m_program.gate.wasPassed(area); };
    if (!std::exchange(m_toldOfNames, true) && HouseholdPersons::areKeptBack(m_program, wasPassed))
        emit said(AlbumWindowLines::namesKeptBack());
}

void PhotoDetails::finish()
{
    for (int field = 0; field < FieldCount; ++field)
        take(Field(field));
    takeStory();
}

void PhotoDetails::take(Field field)
{
    QLineEdit *box = m_boxes[std::size_t(field)];
    if (m_isTaking || m_records.isEmpty() || !box->isModified() || box->isReadOnly())
        return;
    box->setModified(false);
    const QString text = PhotoTexts::composed(box->text()).trimmed();
    if (text == m_shown[std::size_t(field)])
        return;
    const bool isTaken = field == Date   ? takeDate(text)
                         : isList(field) ? takeList(field, text)
                                         : takeText(field, text);
    if (!isTaken)
        box->setModified(true); // to be mended
    refresh();
}

bool PhotoDetails::takeText(Field field, const QString &text)
{
    return change(
        AlbumWindowLines::changed(field == Caption ? u"Caption"_s : u"Place"_s, int(m_records.size())),
        [field, &text](Photo &photo) { (field == Caption ? photo.caption : photo.place) = text; });
}

/// Of several pictures, entries that were added come to each of them, and those that were taken away go.
bool PhotoDetails::takeList(Field field, const QString &text)
{
    const QStringList before = PhotoTexts::list(m_shown[std::size_t(field)]);
    const QStringList typed = PhotoTexts::list(text);
    const auto merged = [&, isOne = m_records.size() == 1](QStringList own) {
        if (isOne)
            return QStringList(typed);
        own.removeIf([&](const QString &entry) { return before.contains(entry) && !typed.contains(entry); });
        for (const QString &entry : typed) {
            if (!own.contains(entry))
                own.append(entry);
        }
        return own;
    };
    const QList<KnownPerson> known = field == People ? persons() : QList<KnownPerson>();
    return change(AlbumWindowLines::changed(field == People ? u"People"_s : u"Tags"_s, int(m_records.size())),
                  [&](Photo &photo) {
                      const QStringList entries = merged(PhotoTexts::list(textOf(photo, field)));
                      if (field == People)
                          setPeople(photo, entries, known);
                      else
                          photo.setTags(entries);
                  });
}

bool PhotoDetails::takeDate(const QString &text)
{
    const std::optional<PhotoDate> date =
        PhotoDateWords::read(text, m_program.state.dateStyle, m_program.clock.today());
    if (!date) {
        emit said(PhotoDateWords::refusal());
        return false;
    }
    return change(AlbumWindowLines::changed(u"Date"_s, int(m_records.size())), [&](Photo &photo) {
        photo.date = *date;
        photo.dateFrom = date->isNone() ? Photo::DateFrom::Nowhere : Photo::DateFrom::Typed;
    });
}

void PhotoDetails::takeStory()
{
    if (m_isTaking || m_records.isEmpty() || !m_story->document()->isModified() || m_story->isReadOnly())
        return;
    m_story->document()->setModified(false);
    const QString text = PhotoTexts::composed(m_story->toPlainText());
    if (text == m_shownStory)
        return;
    const bool isTaken = change(AlbumWindowLines::changed(u"Story"_s, int(m_records.size())),
                                [&text](Photo &photo) { photo.story = text; });
    if (!isTaken)
        m_story->document()->setModified(true);
    refresh();
}

void PhotoDetails::takeRating(int rating)
{
    if (m_records.isEmpty())
        return;
    change(AlbumWindowLines::rated(rating, int(m_records.size())),
           [rating](Photo &photo) { photo.rating = quint8(rating); });
    refresh();
}

/// False where the disk refuses.
bool PhotoDetails::change(const QString &what, const PhotoShelf::Edit &edit)
{
    const QScopedValueRollback<bool> taking(m_isTaking, true);
    return m_shelf.change(m_records, what, edit);
}

/// What is no date, or what the disk refuses, is mended or given up by Esc before anything else.
void PhotoDetails::backTo(Field field)
{
    QLineEdit *box = m_boxes[std::size_t(field)];
    if (!box->isModified() || box->hasFocus() || !box->isVisible() || !isActiveWindow())
        return;
    box->setFocus();
    box->selectAll();
}

QList<int> PhotoDetails::refused() const
{
    const bool isAny = m_story->document()->isModified() ||
                       std::ranges::any_of(m_boxes, [](const QLineEdit *box) { return box->isModified(); });
    return isAny ? m_records : QList<int>();
}

void PhotoDetails::mend()
{
    if (m_story->document()->isModified())
        m_story->setFocus();
    for (int field = 0; field < FieldCount; ++field)
        backTo(Field(field));
}

void PhotoDetails::typeCaption()
{
    m_boxes[Caption]->setFocus();
    m_boxes[Caption]->selectAll();
}

bool PhotoDetails::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_story && event->type() == QEvent::FocusOut)
        takeStory();
    else if (event->type() == QEvent::FocusIn && (watched == m_boxes[People] || watched == m_boxes[Tags]))
        offerNames();
    return QWidget::eventFilter(watched, event);
}

/// Enter in a box goes back to the pictures, so that the next one is an arrow key and F2 away. Esc does so
/// too, and gives up what was typed.
void PhotoDetails::keyPressEvent(QKeyEvent *event)
{
    const bool isEscape = event->key() == Qt::Key_Escape;
    if (!isEscape && event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (isEscape)
        giveUp();
    emit left();
}

void PhotoDetails::giveUp()
{
    for (std::size_t field = 0; field < m_boxes.size(); ++field) {
        if (m_boxes[field]->isModified())
            m_boxes[field]->setText(m_shown[field]);
    }
    if (!m_story->document()->isModified())
        return;
    m_story->setPlainText(m_shownStory);
    m_story->document()->setModified(false);
}
