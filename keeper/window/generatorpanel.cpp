// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/generatorpanel.h"

#include "keeper/model/lines.h"
#include "keeper/window/secretface.h"
#include "keeper/window/windowlines.h"
#include "shell/look/theme.h"
#include "storage/sealing/secretbytes.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QRadioButton>
#include <QSettings>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

using PasswordGenerator::Recipe;

namespace {

constexpr QLatin1StringView keys("Windows/Form4/generator/");
constexpr int numberWidth = 88;
constexpr int indent = 28;

struct Class {
    bool Recipe::*member;
    QStringView caption;
    QLatin1StringView name;
};
constexpr std::array<Class, 5> classes{
    {{&Recipe::hasSmallLetters, u"&Small letters", "makeSmall"_L1},
     {&Recipe::hasCapitals, u"&Capitals", "makeCapitals"_L1},
     {&Recipe::hasDigits, u"&Digits", "makeDigits"_L1},
     {&Recipe::hasSigns, u"S&igns", "makeSigns"_L1},
     {&Recipe::hasLookAlikes, u"Look-&alikes, such as l, 1, I, O and 0", "makeLookAlikes"_L1}}};

QString captionOf(const QString &separator)
{
    return separator == " "_L1 ? u"blank"_s : separator;
}

} // namespace

GeneratorPanel::GeneratorPanel(QSettings &store, QWidget *parent)
    : TaskPanel(u"generatorPanel"_s, u"Make a Password"_s, parent)
    , m_store(store)
    , m_form(new QButtonGroup(this))
    , m_characters(new QWidget(this))
    , m_words(new QWidget(this))
    , m_length(named(new QSpinBox(m_characters), u"makeLength"_s))
    , m_wordCount(named(new QSpinBox(m_words), u"makeWordCount"_s))
    , m_separator(named(new QComboBox(m_words), u"makeSeparator"_s))
    , m_face(named(new SecretFace(this), u"madePassword"_s))
    , m_strength(named(makeQuietLabel({}, this), u"madeStrength"_s))
    , m_again(nullptr)
    , m_copy(nullptr)
    , m_take(nullptr)
{
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(8);
    rows->addWidget(m_face);
    rows->addWidget(m_strength);
    rows->addSpacing(8);
    auto *characters = named(new QRadioButton(u"Cha&racters"_s, content), u"makeCharacters"_s);
    auto *words = named(new QRadioButton(u"&Words"_s, content), u"makeWords"_s);
    m_form->addButton(characters, Recipe::Characters);
    m_form->addButton(words, Recipe::Words);
    rows->addWidget(characters);
    rows->addWidget(makeCharacters());
    rows->addWidget(words);
    rows->addWidget(makeWords());
    rows->addStretch(1);
    setContent(content);
    m_again = addButton(u"makeAnother"_s, u"&Make Another"_s, ButtonKind::Plain, Side::Left);
    m_copy = addButton(u"copyMade"_s, u"Co&py"_s);
    m_take = addButton(u"takeMade"_s, u"Use I&t"_s, ButtonKind::Main);
    setLeaveButton(u"generatorClose"_s, u"C&lose"_s);
    setFocusProxy(m_again);
    restore();
    connect(m_form, &QButtonGroup::idToggled, this, [this](int, bool isOn) {
        if (isOn)
            followRecipe();
    });
    connect(m_again, &QPushButton::clicked, this, &GeneratorPanel::draw);
    connect(m_copy, &QPushButton::clicked, this, [this] { emit copyWanted(m_password); });
    connect(m_take, &QPushButton::clicked, this, [this] {
        const QString password = m_password;
        leave();
        emit taken(password);
    });
}

QWidget *GeneratorPanel::makeCharacters()
{
    auto *grid = new QGridLayout(m_characters);
    grid->setContentsMargins(indent, 0, 0, 8);
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(2, 1);
    m_length->setRange(PasswordGenerator::shortest, PasswordGenerator::longest);
    m_length->setFixedWidth(boxWidth({}, numberWidth));
    grid->addLayout(labelled(u"Length"_s, m_length), 0, 0, 2, 1, Qt::AlignTop | Qt::AlignLeft);
    for (std::size_t i = 0; i < classes.size(); ++i) {
        m_classes[i] = named(new QCheckBox(classes[i].caption.toString(), m_characters), classes[i].name);
        grid->addWidget(m_classes[i], int(i), 1);
        connect(m_classes[i], &QCheckBox::toggled, this, &GeneratorPanel::followRecipe);
    }
    connect(m_length, &QSpinBox::valueChanged, this, &GeneratorPanel::followRecipe);
    return m_characters;
}

QWidget *GeneratorPanel::makeWords()
{
    auto *row = new QHBoxLayout(m_words);
    row->setContentsMargins(indent, 0, 0, 8);
    row->setSpacing(24);
    m_wordCount->setRange(PasswordGenerator::fewestWords, PasswordGenerator::mostWords);
    m_wordCount->setFixedWidth(boxWidth({}, numberWidth));
    for (const QString &separator : PasswordGenerator::separators())
        m_separator->addItem(captionOf(separator), separator);
    m_separator->setFixedWidth(boxWidth(u"blank"_s, numberWidth));
    row->addLayout(labelled(u"Number of words"_s, m_wordCount));
    row->addLayout(labelled(u"Between them"_s, m_separator));
    row->addStretch(1);
    connect(m_wordCount, &QSpinBox::valueChanged, this, &GeneratorPanel::followRecipe);
    connect(m_separator, &QComboBox::currentIndexChanged, this, &GeneratorPanel::followRecipe);
    return m_words;
}

/// The recipe of the last time; never what came of it.
void GeneratorPanel::restore()
{
    const Recipe usual;
    const auto stored = [this](QLatin1StringView key, const QVariant &otherwise) {
        return m_store.value(keys + key, otherwise);
    };
    m_length->setValue(stored("length"_L1, usual.length).toInt());
    m_wordCount->setValue(stored("words"_L1, usual.words).toInt());
    for (std::size_t i = 0; i < classes.size(); ++i)
        m_classes[i]->setChecked(stored(classes[i].name, usual.*classes[i].member).toBool());
    const int separator = m_separator->findData(stored("separator"_L1, usual.separator).toString());
    m_separator->setCurrentIndex(std::max(0, separator));
    const bool isOfWords = stored("form"_L1, Recipe::Characters).toInt() == Recipe::Words;
    m_form->button(isOfWords ? Recipe::Words : Recipe::Characters)->setChecked(true);
}

Recipe GeneratorPanel::recipe() const
{
    Recipe recipe;
    recipe.form = Recipe::Form(std::max(0, m_form->checkedId()));
    recipe.length = m_length->value();
    for (std::size_t i = 0; i < classes.size(); ++i)
        recipe.*classes[i].member = m_classes[i]->isChecked();
    recipe.words = m_wordCount->value();
    recipe.separator = m_separator->currentData().toString();
    return recipe;
}

void GeneratorPanel::followRecipe()
{
    if (!isVisible())
        return;
    const Recipe made = recipe();
    m_store.setValue(keys + "form"_L1, int(made.form));
    m_store.setValue(keys + "length"_L1, made.length);
    m_store.setValue(keys + "words"_L1, made.words);
    m_store.setValue(keys + "separator"_L1, made.separator);
    for (const Class &each : classes)
        m_store.setValue(keys + each.name, made.*each.member);
    draw();
}

void GeneratorPanel::draw()
{
    const Recipe wanted = recipe();
    m_characters->setEnabled(wanted.form == Recipe::Characters);
    m_words->setEnabled(wanted.form == Recipe::Words);
    const bool isPossible = PasswordGenerator::isPossible(wanted);
    SecretBytes::wipe(m_password);
    m_password = isPossible ? PasswordGenerator::make(wanted) : QString();
    m_face->setSecret(m_password);
    m_strength->setText(isPossible ? KeeperLines::drawn(PasswordGenerator::bits(wanted))
                                   : KeeperLines::noKindOfCharacter());
    const QString why = isPossible ? QString() : KeeperLines::noKindOfCharacter();
    for (QPushButton *button : {m_again, m_copy, m_take})
        setUnavailable(button, why);
}

void GeneratorPanel::start(bool isForBox)
{
    m_take->setVisible(isForBox);
    setButtonKind(m_copy, isForBox ? ButtonKind::Plain : ButtonKind::Main);
    draw();
}

void GeneratorPanel::forget()
{
    SecretBytes::wipe(m_password);
    m_face->setSecret({});
}

void GeneratorPanel::leave()
{
    forget();
    TaskPanel::leave();
}
