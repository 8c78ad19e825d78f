// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/limit.h"
#include "shell/writing/dictionaries.h"
#include "shell/writing/spelling.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int wordsOfText = 5'000;
constexpr int distinctWords = 1'400; ///< as many as a text of that length has

DictionaryFiles americanEnglish()
{
    for (const DictionaryFiles &files : Dictionaries::found(Dictionaries::folders({}, {}))) {
        if (files.name == "en_US"_L1)
            return files;
    }
    qFatal("the dictionary en_US is not installed");
}

/// Words of the dictionary from its whole length, each fourth one in a form that needs its rules, each tenth
/// one wrong.
QStringList someWords(const DictionaryFiles &files)
{
    QFile file(files.dicPath);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the dictionary cannot be read");
    const QList<QByteArray> lines = file.readAll().split('\n');
    QStringList words;
    for (int i = 0; words.size() < distinctWords; ++i) {
        const QByteArray &line = lines[1 + qsizetype(i) * 7919 % (lines.size() - 2)];
        QString word = QString::fromUtf8(line.split('/').first());
        if (!WordBreaks::isWord(word) || WordBreaks::checkedWords(word).size() != 1)
            continue;
        if (i % 4 == 0)
            word += u's';
        if (i % 10 == 0)
            word.insert(1, u'q');
        if (!words.contains(word))
            words += word;
    }
    return words;
}

/// A few words often, most of them seldom.
QString textOf(const QStringList &words)
{
    QRandomGenerator random(7);
    QString text;
    for (int i = 0; i < wordsOfText; ++i) {
        const double part = random.generateDouble();
        const int most = i < distinctWords ? i : int(part * part * part * (distinctWords - 1));
        text += words[most] + (i % 12 == 11 ? u".\n"_s : u" "_s);
    }
    return text;
}

Spelling spellingWith(const DataFolder &folder, const DictionaryFiles &files)
{
    Spelling spelling(folder);
    std::vector<std::unique_ptr<Dictionary>> dictionaries;
    dictionaries.push_back(Dictionary::load(files));
    spelling.setDictionaries(std::move(dictionaries));
    return spelling;
}

/// A text that has just been opened: nothing is known of its words yet.
void checkALongText(benchmark::State &state)
{
    constexpr double most = 1.5;
    const QTemporaryDir temporary;
    const DataFolder folder(temporary.path());
    const DictionaryFiles files = americanEnglish();
    const QStringList words = someWords(files);
    const QString text = textOf(words);
    const auto library = Dictionary::load(files);
    const Spelling spelling = spellingWith(folder, files);
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] {
            benchmark::DoNotOptimize(std::ranges::count_if(
                words, [&library](const QString &word) { return library->knows(word); }));
        });
        spelling.forgetLooked();
        limit.measure([&] { benchmark::DoNotOptimize(spelling.wrongWords(text)); });
    }
}
BENCHMARK(checkALongText)->UseManualTime()->MinTime(1);

void checkItAgain(benchmark::State &state)
{
    const QTemporaryDir temporary;
    const DataFolder folder(temporary.path());
    const DictionaryFiles files = americanEnglish();
    const QString text = textOf(someWords(files));
    const Spelling spelling = spellingWith(folder, files);
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(spelling.wrongWords(text));
}
BENCHMARK(checkItAgain)->Unit(benchmark::kMicrosecond);

void loadALanguage(benchmark::State &state)
{
    const DictionaryFiles files = americanEnglish();
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(Dictionary::load(files));
}
BENCHMARK(loadALanguage)->Unit(benchmark::kMillisecond);

void suggestWords(benchmark::State &state)
{
    const auto library = Dictionary::load(americanEnglish());
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(library->suggestions(u"recipt"));
}
BENCHMARK(suggestWords)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
