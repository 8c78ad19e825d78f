#include "shell/pagepainter.h"

#include <QElapsedTimer>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate printedOn(2026, 11, 21);
constexpr double letterWidth = 8.5;
constexpr double letterHeight = 11;

PageFont bodyFont(double points = 11)
{
    PageFont font;
    font.font.setPointSizeF(points);
    return font;
}

/// What a PDF tool says of the file.
QString output(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        QTest::qFail(qPrintable(tool + u" failed: "_s + QString::fromUtf8(process.readAllStandardError())),
                     __FILE__, __LINE__);
    return QString::fromUtf8(process.readAllStandardOutput());
}

Page numbered(int rows, const QString &cell = u"Müller, Zoë"_s)
{
    Page page(u"Family List"_s, u"As of Nov-21-2026"_s);
    page.columns({3, 1}, {u"Name"_s, u"Number"_s}, {Qt::AlignLeft, Qt::AlignRight});
    for (int i = 0; i < rows; ++i)
        page.row({cell, QString::number(i)});
    return page.close(printedOn, DateStyle::Usa);
}

/// The smallest rectangle that holds every dot of this colour, in inches.
QRectF inkOf(const QImage &image, QRgb color, double dotsPerInch)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == color)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return {QPointF(ink.topLeft()) / dotsPerInch, QSizeF(ink.size()) / dotsPerInch};
}

bool isBlank(const QImage &image, const QRectF &inches, double dotsPerInch)
{
    const QRect area = QRectF(inches.topLeft() * dotsPerInch, inches.size() * dotsPerInch).toRect();
    const QImage part = image.copy(area);
    QImage white(part.size(), part.format());
    white.fill(Qt::white);
    return part == white;
}

} // namespace

class TestPagePainter final : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void cutsPagesIntoSheets_data();
    void cutsPagesIntoSheets();
    void everyTextIsOnItsSheetOnce();
    void repeatsTitleAndHeadings();
    void givesPdfsTheirPaper_data();
    void givesPdfsTheirPaper();
    void pdfsAreReadInOrder();
    void printersBreakAsImagesDo();
    void printsTheSheetsAskedFor();
    void stopsWhenTold();
    void putsPicturesToTheHundredthOfAnInch_data();
    void putsPicturesToTheHundredthOfAnInch();
    void keepsTheAspectOfPictures();
    void leavesAnEmptyPlaceForPicturesThatCannotBeRead_data();
    void leavesAnEmptyPlaceForPicturesThatCannotBeRead();
    void turnsPicturesAsTheCameraWasHeld();
    void nothingLeavesTheMargins_data();
    void nothingLeavesTheMargins();
    void numbersStandRight();
    void laysOutFiftyThousandRowsInOneGo();
    void survivesOddPages_data();
    void survivesOddPages();

private:
    QString pdf(const Page &page, const PageSetup &setup = {}, const PageFont &font = bodyFont()) const;
    QString pdfText(const QString &path) const
    {
        return output(u"pdftotext"_s, {u"-layout"_s, path, u"-"_s});
    }
    QString picture(QSize size, QRgb color = qRgb(200, 0, 0)) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestPagePainter::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QString TestPagePainter::pdf(const Page &page, const PageSetup &setup, const PageFont &font) const
{
    const QString path = m_folder->filePath(u"page.pdf"_s);
    QPdfWriter writer(path);
    if (!PagePainter(page, setup, font).print(writer))
        QTest::qFail("no PDF", __FILE__, __LINE__);
    return path;
}

QString TestPagePainter::picture(QSize size, QRgb color) const
{
    const QString path = m_folder->filePath(u"picture.png"_s);
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    image.save(path);
    return path;
}

void TestPagePainter::cutsPagesIntoSheets_data()
{
    QTest::addColumn<Page>("page");
    QTest::addColumn<int>("sheets");
    QTest::newRow("nothing") << Page() << 1;
    QTest::newRow("only closing lines") << Page().close(printedOn, DateStyle::Usa) << 1;
    QTest::newRow("a break") << Page().line(u"a"_s).breakPage().line(u"b"_s) << 2;
    QTest::newRow("a break before anything") << Page(u"T"_s).breakPage().line(u"b"_s) << 1;
    QTest::newRow("a break behind everything")
        << Page().line(u"a"_s).breakPage().close(printedOn, DateStyle::Usa) << 1;
    QTest::newRow("two breaks in a row") << Page().line(u"a"_s).breakPage().breakPage().line(u"b"_s) << 2;
    QTest::newRow("placed items alone")
        << Page().placeText({1, 1, 1, 1}, u"a"_s).breakPage().placeText({1, 1, 1, 1}, u"b"_s) << 2;
    Page blank;
    for (int i = 0; i < 200; ++i)
        blank.blankLine();
    QTest::newRow("blank lines never start a sheet") << blank << 1;
    QTest::newRow("a picture that finds no room")
        << Page().picture({}, {7, 6}).picture({}, {7, 6}).close(printedOn, DateStyle::Usa) << 2;
    QTest::newRow("closing lines below placed items")
        << Page().placeText({0.5, 9.7, 3, 0.3}, u"a"_s).close(printedOn, DateStyle::Usa) << 1;
    QTest::newRow("closing lines with no room below placed items")
        << Page().placeText({0.5, 10.5, 3, 0.3}, u"a"_s).close(printedOn, DateStyle::Usa) << 2;
}

void TestPagePainter::cutsPagesIntoSheets()
{
    QFETCH(Page, page);
    const PagePainter painter(page, {}, bodyFont());
    QTEST(painter.sheetCount(), "sheets");
    QCOMPARE(output(u"pdfinfo"_s, {pdf(page)}).contains(u"Pages:           %1\n"_s.arg(painter.sheetCount())),
             true);
}

void TestPagePainter::everyTextIsOnItsSheetOnce()
{
    for (int rows = 20; rows < 120; ++rows) {
        const PagePainter painter(numbered(rows), {}, bodyFont());
        QStringList numbers;
        for (int sheet = 0; sheet < painter.sheetCount(); ++sheet) {
            QStringList lines = painter.text(sheet).split(u'\n');
            // Blank line, title, blank line, headings; on the last sheet blank line and closing lines.
            QVERIFY2(lines.size() > 4, "a sheet with closing lines alone");
            lines = lines.mid(4);
            if (sheet + 1 == painter.sheetCount())
                lines = lines.mid(0, lines.size() - 3);
            QVERIFY2(!lines.isEmpty(), qPrintable(u"a sheet without rows, of %1 rows"_s.arg(rows)));
            for (const QString &line : lines)
                numbers << line.section(u'\t', 1);
        }
        QCOMPARE(numbers.size(), rows);
        QCOMPARE(numbers.constFirst(), u"0"_s);
        QCOMPARE(numbers.constLast(), QString::number(rows - 1));
    }
}

void TestPagePainter::repeatsTitleAndHeadings()
{
    const QStringList sheets = pdfText(pdf(numbered(60))).split(u'\f', Qt::SkipEmptyParts);
    QCOMPARE(sheets.size(), 2);
    for (int i = 0; i < sheets.size(); ++i) {
        QVERIFY(sheets[i].contains(u"Family List"_s));
        QVERIFY(sheets[i].contains(u"As of Nov-21-2026"_s));
        QCOMPARE(sheets[i].count(u"Number"_s), 1);
        QVERIFY(sheets[i].contains(u"Page %1 of 2"_s.arg(i + 1)));
        QCOMPARE(sheets[i].contains(u"Printed on 11/21/2026"_s), i == 1);
    }
}

void TestPagePainter::givesPdfsTheirPaper_data()
{
    QTest::addColumn<QSizeF>("paper");
    QTest::addColumn<PageSetup::Orientation>("orientation");
    QTest::addColumn<QString>("size");
    const QSizeF a4(210 / 25.4, 297 / 25.4);
    QTest::newRow("letter") << QSizeF(8.5, 11) << PageSetup::Portrait << u"612 x 792 pts (letter)"_s;
    QTest::newRow("letter, landscape")
        << QSizeF(8.5, 11) << PageSetup::Landscape << u"792 x 612 pts (letter)"_s;
    QTest::newRow("A4") << a4 << PageSetup::Portrait << u"595 x 842 pts (A4)"_s;
    QTest::newRow("A4, landscape") << a4 << PageSetup::Landscape << u"842 x 595 pts (A4)"_s;
}

void TestPagePainter::givesPdfsTheirPaper()
{
    QFETCH(QSizeF, paper);
    QFETCH(PageSetup::Orientation, orientation);
    QFETCH(QString, size);
    const PageSetup setup{paper, orientation};
    const QString info = output(u"pdfinfo"_s, {pdf(numbered(3), setup)});
    QVERIFY2(info.contains(size), qPrintable(info));

    const PageSetup back = PagePainter::setupOf(PagePainter::deviceLayout(setup));
    QCOMPARE(back.orientation, orientation);
    QVERIFY(std::abs(back.paper.width() - paper.width()) < 0.01);
}

void TestPagePainter::pdfsAreReadInOrder()
{
    Page page(u"Information For Müller-Lüdenscheidt, Zoë"_s);
    page.line(u"Date of Birth: Nov-24-1978"_s, TextRole::Strong).line(u"Straße 12, Orléans"_s);
    page.line(u"Señor Núñez – café “Bœuf” €"_s, TextRole::Small).blank(u"Last Name:"_s);
    page.close(printedOn, DateStyle::Other);
    const QString path = pdf(page);
    QStringList lines = pdfText(path).remove(u'\f').split(u'\n', Qt::SkipEmptyParts);
    for (QString &line : lines)
        line = line.simplified();
    QCOMPARE(lines,
             (QStringList{u"Information For Müller-Lüdenscheidt, Zoë"_s, u"Date of Birth: Nov-24-1978"_s,
                          u"Straße 12, Orléans"_s, u"Señor Núñez – café “Bœuf” €"_s, u"Last Name:"_s,
                          u"Quillery"_s, u"Printed on 21/11/2026"_s}));
    const QString fonts = output(u"pdffonts"_s, {path});
    for (const QString &line : fonts.split(u'\n', Qt::SkipEmptyParts).mid(2))
        QVERIFY2(line.contains(QRegularExpression(u"Identity-H +yes"_s)), qPrintable(fonts));
}

void TestPagePainter::printersBreakAsImagesDo()
{
    const Page page =
        numbered(100, u"A name that is long enough to be broken over two or more lines of its column"_s);
    const PagePainter painter(page, {}, bodyFont());
    QStringList expected;
    for (int sheet = 0; sheet < painter.sheetCount(); ++sheet)
        expected << painter.text(sheet).section(u'\t', -1).section(u'\n', 0, 0);
    for (const int resolution : {72, 300, 1200}) {
        const QString path = m_folder->filePath(u"printed.pdf"_s);
        QPrinter printer(QPrinter::HighResolution);
        printer.setResolution(resolution);
        printer.setOutputFileName(path);
        QVERIFY(painter.print(printer));
        const QStringList sheets = pdfText(path).split(u'\f', Qt::SkipEmptyParts);
        QCOMPARE(sheets.size(), expected.size());
        for (int i = 0; i + 1 < sheets.size(); ++i)
            QVERIFY(sheets[i].contains(QRegularExpression(u" %1\n"_s.arg(expected[i]))));
    }
}

void TestPagePainter::printsTheSheetsAskedFor()
{
    const PagePainter painter(numbered(100), {}, bodyFont());
    const QString path = m_folder->filePath(u"some.pdf"_s);
    QPdfWriter writer(path);
    QVERIFY(painter.print(writer, std::vector<int>{2, 0}));
    const QStringList sheets = pdfText(path).split(u'\f', Qt::SkipEmptyParts);
    QCOMPARE(sheets.size(), 2);
    QVERIFY(sheets[0].contains(u"Page 3 of"_s));
    QVERIFY(sheets[1].contains(u"Page 1 of"_s));

    QPdfWriter nowhere(m_folder->filePath(u"missing/folder/x.pdf"_s));
    QVERIFY(!painter.print(nowhere));
    QVERIFY(!painter.print(writer, std::vector<int>{}));
}

void TestPagePainter::stopsWhenTold()
{
    const PagePainter painter(numbered(100), {}, bodyFont());
    QVERIFY(painter.sheetCount() >= 3);
    QList<int> asked;
    QPdfWriter writer(m_folder->filePath(u"stopped.pdf"_s));
    QVERIFY(!painter.print(writer, [&asked](int sheet) {
        asked << sheet;
        return sheet < 1;
    }));
    QCOMPARE(asked, (QList<int>{0, 1}));
}

void TestPagePainter::putsPicturesToTheHundredthOfAnInch_data()
{
    QTest::addColumn<QPointF>("corner");
    for (const QPointF corner :
         {QPointF(0.25, 0.8), QPointF(2.25, 2.8), QPointF(4.25, 4.8), QPointF(6.25, 8.8)})
        QTest::addRow("%.2f, %.2f", corner.x(), corner.y()) << corner;
    QTest::newRow("an odd hundredth") << QPointF(3.33, 5.67);
}

void TestPagePainter::putsPicturesToTheHundredthOfAnInch()
{
    QFETCH(QPointF, corner);
    constexpr double dotsPerInch = 200;
    constexpr QRgb red = qRgb(200, 0, 0);
    const Page page = Page(u"Pictures"_s).placePicture({corner, QSizeF(1.5, 1.5)}, picture({900, 900}, red));
    const QImage onScreen = PagePainter(page, {}, bodyFont()).image(0, dotsPerInch);
    QCOMPARE(onScreen.size(), QSize(int(letterWidth * dotsPerInch), int(letterHeight * dotsPerInch)));
    const QRectF ink = inkOf(onScreen, red, dotsPerInch);
    QVERIFY(std::abs(ink.left() - corner.x()) <= 0.01);
    QVERIFY(std::abs(ink.top() - corner.y()) <= 0.01);
    QVERIFY(std::abs(ink.width() - 1.5) <= 0.01);
    QVERIFY(std::abs(ink.height() - 1.5) <= 0.01);

    const QString prefix = m_folder->filePath(u"paper"_s);
    output(u"pdftoppm"_s, {u"-r"_s, u"200"_s, u"-png"_s, u"-singlefile"_s, pdf(page), prefix});
    const QImage onPaper(prefix + u".png"_s);
    const int row = qRound((corner.y() + 0.75) * dotsPerInch);
    int first = 0;
    while (first < onPaper.width() &&
           qRed(onPaper.pixel(first, row)) - qGreen(onPaper.pixel(first, row)) < 100)
        ++first;
    QVERIFY(std::abs(first / dotsPerInch - corner.x()) <= 0.01);
}

void TestPagePainter::keepsTheAspectOfPictures()
{
    constexpr double dotsPerInch = 100;
    constexpr QRgb red = qRgb(200, 0, 0);
    const Page page = Page().placePicture({1, 2, 3, 3}, picture({60, 20}, red));
    const QRectF ink = inkOf(PagePainter(page, {}, bodyFont()).image(0, dotsPerInch), red, dotsPerInch);
    QCOMPARE(ink.topLeft(), QPointF(1, 2));
    QVERIFY(std::abs(ink.width() - 3) <= 0.02);
    QVERIFY(std::abs(ink.height() - 1) <= 0.02);
}

void TestPagePainter::leavesAnEmptyPlaceForPicturesThatCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no file") << QByteArray();
    QTest::newRow("noise") << QByteArray("BM noise that begins as a picture would \xff\xd8\xff\x00\x01", 44);
    QTest::newRow("a picture cut off")
        << QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000003e8000003e808");
    QTest::newRow("a picture larger than the memory") << QByteArray::fromHex(
        "424d3600000000000000360000002800000000ffff7f00ffff7f01001800000000000000000000000000");
}

void TestPagePainter::leavesAnEmptyPlaceForPicturesThatCannotBeRead()
{
    QFETCH(QByteArray, bytes);
    const QString path = m_folder->filePath(u"broken.jpg"_s);
    if (!bytes.isEmpty()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    Page page;
    for (const QString &name : {path, m_folder->path(), QString()})
        page.placePicture({4, 4, 2, 2}, name).picture(name, {2, 2});
    const QImage image = PagePainter(page, {}, bodyFont()).image(0, 100);
    QVERIFY(isBlank(image, {4.1, 4.1, 1.8, 1.8}, 100));
    QVERIFY(!isBlank(image, {3.98, 3.98, 2.04, 2.04}, 100));
}

void TestPagePainter::turnsPicturesAsTheCameraWasHeld()
{
    // A picture that lies on its side, with the mark of a camera held upright before its data.
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(qRgb(200, 0, 0));
    const QString path = m_folder->filePath(u"upright.jpg"_s);
    image.save(path, "JPG", 100);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray bytes = file.readAll();
    bytes.insert(2, QByteArray::fromHex("ffe10022457869660000" // an Exif part of 34 bytes
                                        "4d4d002a00000008"     // big endian, its directory at 8
                                        "0001"
                                        "0112"
                                        "0003"
                                        "00000001"
                                        "0006"
                                        "0000"
                                        "00000000"));
    file.seek(0);
    file.write(bytes);
    file.close();

    constexpr double dotsPerInch = 100;
    const Page page = Page().placePicture({1, 1, 2, 2}, path);
    const QImage sheet = PagePainter(page, {}, bodyFont()).image(0, dotsPerInch);
    QVERIFY(isBlank(sheet, {2.1, 1, 1, 2}, dotsPerInch));
    QVERIFY(!isBlank(sheet, {1, 2.8, 0.9, 0.1}, dotsPerInch));
}

void TestPagePainter::nothingLeavesTheMargins_data()
{
    QTest::addColumn<double>("points");
    QTest::addColumn<PageSetup::Orientation>("orientation");
    QTest::newRow("usual") << 11.0 << PageSetup::Portrait;
    QTest::newRow("small") << 6.0 << PageSetup::Landscape;
    QTest::newRow("large") << 30.0 << PageSetup::Portrait;
    QTest::newRow("huge") << 96.0 << PageSetup::Landscape;
}

void TestPagePainter::nothingLeavesTheMargins()
{
    QFETCH(double, points);
    QFETCH(PageSetup::Orientation, orientation);
    const QString word(60, u'W');
    Page page(word + word, u"a date"_s);
    page.line(word + word)
        .columns({1, 2, 1}, {word, word, word}, {Qt::AlignLeft, Qt::AlignLeft, Qt::AlignRight});
    for (int i = 0; i < 8; ++i)
        page.row({word, u"many words "_s.repeated(20), word, u"and a cell too many"_s});
    page.blank(word).picture({}, {30, 30}).close(printedOn, DateStyle::Usa);
    const PageSetup setup{{letterWidth, letterHeight}, orientation};
    const PagePainter painter(page, setup, bodyFont(points));
    constexpr double dotsPerInch = 50;
    const QSizeF sheet = setup.sheet();
    for (int i = 0; i < painter.sheetCount(); ++i) {
        const QImage image = painter.image(i, dotsPerInch);
        QVERIFY(isBlank(image, {0, 0, 0.46, sheet.height()}, dotsPerInch));
        QVERIFY(isBlank(image, {sheet.width() - 0.46, 0, 0.46, sheet.height()}, dotsPerInch));
        QVERIFY(isBlank(image, {0, 0, sheet.width(), 0.46}, dotsPerInch));
        QVERIFY(isBlank(image, {0, sheet.height() - 0.46, sheet.width(), 0.46}, dotsPerInch));
    }
}

void TestPagePainter::numbersStandRight()
{
    Page page;
    page.columns({1, 1}, {}, {Qt::AlignLeft, Qt::AlignRight}).row({u"Rent"_s, u"11760.00"_s});
    constexpr double dotsPerInch = 100;
    const QImage image = PagePainter(page, {}, bodyFont()).image(0, dotsPerInch);
    QVERIFY(!isBlank(image, {7.9, 0.5, 0.1, 0.4}, dotsPerInch));
    QVERIFY(isBlank(image, {4.3, 0.5, 2, 0.4}, dotsPerInch));
}

void TestPagePainter::laysOutFiftyThousandRowsInOneGo()
{
    const auto fastest = [](int rows) {
        const Page page = numbered(rows);
        qint64 best = std::numeric_limits<qint64>::max();
        for (int run = 0; run < 3; ++run) {
            QElapsedTimer timer;
            timer.start();
            const PagePainter painter(page, {}, bodyFont());
            best = std::min(best, timer.nsecsElapsed());
        }
        return best;
    };
    const qint64 few = fastest(5'000);
    const qint64 many = fastest(50'000);
    // Ten times the rows: a layout that goes back for each sheet would take a hundred times as long.
    QVERIFY2(many < 40 * few, qPrintable(u"%1 ns for ten times what takes %2 ns"_s.arg(many).arg(few)));
    QVERIFY(many < 2'000'000'000);

    const PagePainter painter(numbered(50'000), {}, bodyFont());
    QVERIFY(painter.text(painter.sheetCount() - 1).contains(u"\t49999\n"_s));
    QVERIFY(!painter.image(painter.sheetCount() - 1, 50).isNull());
}

void TestPagePainter::survivesOddPages_data()
{
    QTest::addColumn<Page>("page");
    QTest::addColumn<PageSetup>("setup");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const PageSetup letter;
    QTest::newRow("no weights") << Page().columns({}, {u"a"_s}).row({u"b"_s, u"c"_s}).row({}) << letter;
    QTest::newRow("weights that are none")
        << Page().columns({0, -1, nan}).row({u"b"_s, u"c"_s, u"d"_s, u"e"_s}) << letter;
    QTest::newRow("rows without columns") << Page().row({u"a"_s, u"b"_s}).row({}) << letter;
    QTest::newRow("sizes that are none") << Page()
                                                .picture(u"x"_s, {-1, nan})
                                                .placePicture({nan, nan, nan, nan}, u"x"_s)
                                                .placeText({1, 1, -1, -1}, u"y"_s)
                                         << letter;
    QTest::newRow("places off the sheet") << Page().placeText({1e9, -1e9, 5, 5}, u"far away"_s) << letter;
    QTest::newRow("control characters")
        << Page(u"\x01\x02\t"_s).line(u"a\r\nb\rc\u2028d\te\x1b"_s).row({u"\n\n"_s, QString(3, QChar(0))})
        << letter;
    QTest::newRow("one enormous line")
        << Page().line(QString(100'000, u'x')).line(u"y "_s.repeated(50'000)) << letter;
    QTest::newRow("a row higher than a sheet")
        << Page().columns({1, 1}, {u"h"_s}).row({u"a"_s, u"word "_s.repeated(3'000)}).row({u"last"_s})
        << letter;
    QTest::newRow("no paper") << Page(u"T"_s).line(u"a"_s).close(printedOn, DateStyle::Usa)
                              << PageSetup{{0, 0}, PageSetup::Portrait};
    QTest::newRow("an endless strip of paper")
        << Page(u"T"_s).line(u"a"_s) << PageSetup{{1, 1e9}, PageSetup::Landscape};
}

void TestPagePainter::survivesOddPages()
{
    QFETCH(Page, page);
    QFETCH(PageSetup, setup);
    const PagePainter painter(page, setup, bodyFont());
    QVERIFY(painter.sheetCount() >= 1);
    for (int sheet = -1; sheet <= painter.sheetCount(); ++sheet)
        QVERIFY(!painter.image(sheet, 20).isNull());
}

QTEST_MAIN(TestPagePainter)
#include "tst_pagepainter.moc"
