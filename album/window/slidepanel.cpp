// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/slidepanel.h"

#include "album/model/lines.h"
#include "shell/look/systemlook.h"
#include "shell/program/program.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QSpinBox>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView keys("Windows/PhotoVIEW1/slides/");
constexpr int screenWidth = 320;

QString keysHint()
{
    return u"Space pauses, the arrows go on and back, C shows and hides the captions, Esc ends it."_s;
}

QString nothingToShow()
{
    return u"All of these pictures are left out of slide shows"_s;
}

QString lessMotion()
{
    return u"This system is set to less motion: one picture takes the place of the other at once"_s;
}

} // namespace

SlidePanel::SlidePanel(const Program &program, const PhotoShelf &shelf, QWidget *parent)
    : TaskPanel(u"slidePanel"_s, u"Slide Show"_s, parent)
    , m_program(program)
    , m_shelf(shelf)
    , m_what(makeHeading({}, this))
    , m_seconds(named(new QSpinBox(this), u"slideSeconds"_s))
    , m_screen(named(new QComboBox(this), u"slideScreen"_s))
    , m_soft(named(new QCheckBox(u"One picture passes &softly into the next"_s, this), u"slideSoft"_s))
    , m_shuffled(named(new QCheckBox(u"In any or&der, another one each round"_s, this), u"slideShuffled"_s))
    , m_captions(named(new QCheckBox(u"&Captions below the pictures"_s, this), u"slideCaptionsShown"_s))
    , m_begin(nullptr)
{
    auto *content = new QWidget(this);
    fill(content);
    setContent(content);
    setFocusProxy(m_seconds);
    m_begin = addButton(u"slideBegin"_s, u"&Begin"_s, ButtonKind::Main);
    setLeaveButton(u"slideClose"_s, u"C&lose"_s);
    connect(m_begin, &QPushButton::clicked, this, [this] {
        remember();
        emit accepted();
    });
}

void SlidePanel::fill(QWidget *content)
{
    m_seconds->setRange(SlideOptions::leastSeconds, SlideOptions::mostSeconds);
    m_seconds->setSuffix(u" seconds"_s);
    m_seconds->setFixedWidth(boxWidth(u"30 seconds"_s, 150));
    m_seconds->setAccessibleName(u"Each picture stays"_s);
    m_screen->setFixedWidth(boxWidth({}, screenWidth));
    m_screen->setAccessibleName(u"Screen"_s);
    m_seconds->setMinimumHeight(m_screen->sizeHint().height());
    m_what->setWordWrap(true);
    auto *hint = makeQuietLabel(keysHint(), content);
    hint->setWordWrap(true);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addWidget(m_what);
    auto *boxes = new QHBoxLayout;
    boxes->setSpacing(12);
    boxes->addLayout(labelled(u"Each p&icture stays"_s, m_seconds));
    boxes->addLayout(labelled(u"Sc&reen"_s, m_screen));
    boxes->addStretch(1);
    column->addLayout(boxes);
    for (QCheckBox *tick : {m_soft, m_shuffled, m_captions})
        column->addWidget(tick);
    column->addWidget(hint);
    column->addStretch(1);
    const QSettings &store = m_program.store;
    const SlideOptions usual;
    m_seconds->setValue(store.value(keys + "seconds"_L1, usual.seconds).toInt());
    m_soft->setChecked(store.value(keys + "soft"_L1, usual.isSoft).toBool());
    m_shuffled->setChecked(store.value(keys + "shuffled"_L1, usual.isShuffled).toBool());
    m_captions->setChecked(store.value(keys + "captions"_L1, usual.hasCaptions).toBool());
}

/// The screens that are there now, the one that was chosen the last time first of all.
void SlidePanel::fillScreens()
{
    m_screen->clear();
    const QList<QScreen *> screens = QGuiApplication::screens();
    const QString chosen = m_program.store.value(keys + "screen"_L1).toString();
    for (const QScreen *each : screens) {
        const QSize size = (QSizeF(each->size()) * each->devicePixelRatio()).toSize(); // in its own pixels
        const QString name = each->model().isEmpty() ? each->name() : each->model();
        m_screen->addItem(u"%1, %2 x %3"_s.arg(name).arg(size.width()).arg(size.height()), each->name());
        if (each->name() == chosen || (chosen.isEmpty() && each == screen()))
            m_screen->setCurrentIndex(m_screen->count() - 1);
    }
    setUnavailable(m_screen, screens.size() > 1 ? QString() : u"There is one screen only"_s);
}

void SlidePanel::start(const QString &name, const QList<int> &photos)
{
    m_photos = SlideShow::shown(m_shelf, photos);
    m_what->setText(u"%1: %2"_s.arg(name, AlbumLines::pictures(m_photos.size())));
    fillScreens();
    setUnavailable(m_soft, SystemLook::wantsLessMotion() ? lessMotion() : QString());
    setUnavailable(m_begin, m_photos.isEmpty() ? nothingToShow() : QString());
    setWords(m_photos.isEmpty() ? nothingToShow() : QString());
}

SlideOptions SlidePanel::options() const
{
    SlideOptions options;
    options.seconds = m_seconds->value();
    options.isSoft = m_soft->isChecked() && m_soft->isEnabled();
    options.isShuffled = m_shuffled->isChecked();
    options.hasCaptions = m_captions->isChecked();
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (QScreen *each : screens) {
        if (each->name() == m_screen->currentData().toString())
            options.screen = each;
    }
    return options;
}

void SlidePanel::remember() const
{
    QSettings &store = m_program.store;
    store.setValue(keys + "seconds"_L1, m_seconds->value());
    store.setValue(keys + "soft"_L1, m_soft->isChecked());
    store.setValue(keys + "shuffled"_L1, m_shuffled->isChecked());
    store.setValue(keys + "captions"_L1, m_captions->isChecked());
    store.setValue(keys + "screen"_L1, m_screen->currentData());
}
