// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/desk.h"

#include "shell/look/theme.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcessEnvironment>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array desks{
    Desk{"", {1280, 800}, 1, 96, false, true},      Desk{"dark", {1280, 800}, 1, 96, true, false},
    Desk{"1024", {1024, 768}, 1, 96, false, false}, Desk{"800", {800, 600}, 1, 96, false, false},
    Desk{"200", {1920, 1080}, 2, 96, false, false}, Desk{"144", {1600, 900}, 1, 144, false, false}};

/// On every Debian, and wide: what fits in it fits in the usual fonts.
constexpr QLatin1StringView fontFamily = "DejaVu Sans"_L1;
constexpr QLatin1StringView fontSettings = R"(<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/truetype/dejavu</dir>
  <cachedir>%1</cachedir>
  <match target="font">
    <edit name="antialias" mode="assign"><bool>true</bool></edit>
    <edit name="hinting" mode="assign"><bool>true</bool></edit>
    <edit name="hintstyle" mode="assign"><const>hintslight</const></edit>
    <edit name="autohint" mode="assign"><bool>false</bool></edit>
    <edit name="rgba" mode="assign"><const>none</const></edit>
  </match>
</fontconfig>
)"_L1;

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

} // namespace

QString Desk::suffix() const
{
    return *name ? u'-' + QString::fromLatin1(name) : QString();
}

std::span<const Desk> Desk::all()
{
    return desks;
}

const Desk *Desk::named(const QString &name)
{
    const auto found =
        std::ranges::find_if(desks, [&](const Desk &desk) { return name == QLatin1String(desk.name); });
    return found == desks.end() ? nullptr : &*found;
}

QProcessEnvironment Desk::surroundings(const QString &folder) const
{
    const QJsonObject oneScreen{{u"name"_s, u"desk"_s},
                                {u"x"_s, 0},
                                {u"y"_s, 0},
                                {u"width"_s, screen.width()},
                                {u"height"_s, screen.height()},
                                {u"logicalDpi"_s, dotsPerInch},
                                {u"logicalBaseDpi"_s, 96},
                                {u"dpr"_s, 1}};
    const QJsonObject screens{{u"windowFrameMargins"_s, false}, {u"screens"_s, QJsonArray{oneScreen}}};
    const QString screenFile = folder + u"/screen.json"_s;
    const QString fontFile = folder + u"/fonts.conf"_s;
    write(screenFile, QJsonDocument(screens).toJson());
    write(fontFile, QString(fontSettings).arg(folder).toUtf8());

    QProcessEnvironment around = QProcessEnvironment::systemEnvironment();
    for (const QString &name : around.keys())
        if (name.startsWith("QT_"_L1) || name.startsWith("LC_"_L1) || name.startsWith("XDG_"_L1))
            around.remove(name);
    around.insert(u"QT_QPA_PLATFORM"_s, u"offscreen:configfile="_s + screenFile);
    around.insert(u"QT_SCALE_FACTOR"_s, QString::number(scale));
    around.insert(u"FONTCONFIG_FILE"_s, fontFile);
    around.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    around.insert(u"HOME"_s, folder);
    around.insert(u"XDG_RUNTIME_DIR"_s, folder);
    return around;
}

void Desk::furnish(QApplication &application) const
{
    QFont font{QString(fontFamily)};
    font.setPointSizeF(10.5);
    QApplication::setFont(font);
    QApplication::setPalette(isDark ? QPalette(QColor(42, 46, 50)) : QPalette(QColor(239, 239, 239)));
    Theme::apply(application);
    QApplication::setCursorFlashTime(0); // a caret that blinks is in every second picture
    QCursor::setPos(-100, -100);         // beside the screen, where it marks nothing
}
