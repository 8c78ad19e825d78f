// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/theme.h"

#include "shell/look/housestyle.h"
#include "shell/look/systemlook.h"

#include <QApplication>
#include <QFontInfo>
#include <QStyleFactory>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double basePoints = 10.5;
constexpr double smallestPoints = 9.5;

/// The sheet, with the names of the theme's colours behind "@". Text colours are left to the palette wherever
/// they can be: a sheet's text colour makes placeholders half transparent.
constexpr QLatin1StringView sheetTemplate = R"(
QMenuBar { background: @bar; padding: 2px 6px; border: 0; }
QMenuBar::item { background: transparent; padding: 6px 10px; margin: 0 2px; border-radius: 6px; }
QMenuBar::item:selected { background: @soft; }
QMenuBar::item:pressed { background: @pressed; }
QMenu { background: @panel; border: 1px solid @edge; padding: 5px; }
QMenu::item { padding: 6px 28px 6px 12px; border-radius: 5px; }
QMenu::item:selected { background: @soft; color: @text; }
QMenu::item:disabled { color: @disabledText; background: transparent; }
QMenu::indicator { width: 16px; height: 16px; left: 7px; }
QMenu::separator { height: 1px; background: @line; margin: 5px 8px; }
QStatusBar { background: @bar; border-top: 1px solid @line; min-height: 32px; }
QStatusBar::item { border: 0; }
QToolTip { background: @panel; color: @text; border: 1px solid @edge; padding: 4px 7px; }
QLineEdit, QPlainTextEdit, QTextEdit {
    background: @field; border: 1px solid @edge; border-radius: 6px; padding: 5px 8px; min-height: 22px;
    selection-background-color: @accent; selection-color: @onAccent; }
QLineEdit:focus, QPlainTextEdit:focus, QTextEdit:focus {
    background: @mark; border: 2px solid @accent; padding: 4px 7px; }
QLineEdit:read-only { background: @locked; border: 1px solid @line; padding: 5px 8px; }
QLineEdit:read-only:focus { background: @locked; border: 2px solid @accent; padding: 4px 7px; }
QLineEdit:disabled, QPlainTextEdit:disabled, QTextEdit:disabled {
    background: @locked; border: 1px solid @line; padding: 5px 8px; }
QAbstractSpinBox QLineEdit, QComboBox QLineEdit { background: transparent; border: 0; padding: 0; min-height: 0; }
QAbstractItemView QLineEdit { border-radius: 0; padding: 0 6px; min-height: 0; }
QAbstractItemView QLineEdit:focus { padding: 0 4px; }
QListView, QTreeView, QTableView, QTextBrowser {
    background: @field; alternate-background-color: @alternate; border: 1px solid @line; border-radius: 8px;
    padding: 3px; selection-background-color: @accent; selection-color: @onAccent; outline: 0;
    gridline-color: @line; }
QListView:focus, QTreeView:focus, QTableView:focus, QTextBrowser:focus {
    background: @field; border: 2px solid @accent; padding: 2px; }
QListView:disabled, QTreeView:disabled, QTableView:disabled { background: @locked; }
QListView#comingUp, QListView#comingUp:focus { background: transparent; border: 0; padding: 0; }
TimeList, QComboBox#Combo1 { combobox-popup: 0; }
QComboBoxPrivateContainer QListView, QComboBox QListView { border: 0; border-radius: 0; padding: 2px; }
QHeaderView { background: @head; border: 0; }
QHeaderView::section { background: @head; border: 0; border-bottom: 1px solid @line; padding: 5px 8px; }
QTableCornerButton::section { background: @head; border: 0; }
QToolButton { background: transparent; border: 2px solid transparent; border-radius: 6px; padding: 0 9px; }
QLineEdit[tight="true"] { min-height: 20px; padding: 3px 8px; }
QLineEdit[tight="true"]:focus { padding: 2px 7px; }
QToolButton[tall="true"] { padding: 0 2px; }
QToolButton:hover { background: @soft; }
QToolButton:pressed, QToolButton:checked { background: @pressed; }
QToolButton:focus { border-color: @accent; }
QToolButton:disabled { background: transparent; color: @disabledText; }
QScrollBar:vertical { background: transparent; width: 14px; margin: 2px; }
QScrollBar:horizontal { background: transparent; height: 14px; margin: 2px; }
QScrollBar::handle { background: @handle; border-radius: 5px; }
QScrollBar::handle:vertical { min-height: 36px; }
QScrollBar::handle:horizontal { min-width: 36px; }
QScrollBar::handle:hover { background: @edge; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; border: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QScrollArea { background: transparent; border: 0; }
QAbstractScrollArea::corner { background: transparent; border: 0; }
QSplitter::handle { background: transparent; }
QSlider::groove:horizontal { background: @handle; height: 4px; border-radius: 2px; }
QSlider::handle:horizontal { background: @field; border: 1px solid @edge; border-radius: 8px; width: 14px; margin: -6px 0; }
QSlider::handle:horizontal:hover { background: @soft; }
QSlider::handle:horizontal:focus { background: @mark; border: 2px solid @accent; width: 12px; }
QProgressBar { background: @locked; border: 1px solid @edge; border-radius: 6px; text-align: center;
    min-height: 16px; max-height: 18px; }
QProgressBar::chunk { background: @soft; border-radius: 5px; }
QLabel[chip="true"] { background: @soft; color: @accent; border-radius: 11px; padding: 2px 13px; min-height: 18px; }
)"_L1;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double points(const QFont &font)
{
    return font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
}

/// How much larger the user's base font is than one of 10.5 points.
double growth()
{
    return std::max(1.0, points(QApplication::font()) / basePoints);
}

/// `size` is meant for a base font of 10.5 points and grows with a larger one.
QFont step(double size, QFont::Weight weight = QFont::Normal)
{
    QFont font = QApplication::font();
    font.setPointSizeF(std::max(smallestPoints, size * growth()));
    font.setWeight(weight);
    return font;
}

/// Lets the base font reach every kind of control: each new style or sheet brings the system's own back.
void forgetSmallFonts(const QFont &base)
{
    if (SystemLook::hasSmallFonts())
        QApplication::setFont(base);
}

} // namespace

const Theme &Theme::light()
{
    static const Theme theme{Icons::Scheme::Light, "#F4F0E8"_L1, "#FBF8F2"_L1, "#FFFDF9"_L1, "#FFFFFF"_L1,
                             "#F7F3EB"_L1,         "#2A2825"_L1, "#5E584E"_L1, "#E0D9CC"_L1, "#8D8576"_L1,
                             "#0B6760"_L1,         "#FFFFFF"_L1, "#DCECE8"_L1, "#FFF6C7"_L1, "#FAF7F1"_L1,
                             "#EFEADF"_L1,         "#736D63"_L1, "#8A4B00"_L1, "#A92B1D"_L1, "#E4DDD0"_L1};
    return theme;
}

const Theme &Theme::dark()
{
    static const Theme theme{Icons::Scheme::Dark, "#1F1D1B"_L1, "#262422"_L1, "#2B2926"_L1, "#33302D"_L1,
                             "#282623"_L1,        "#EEE9E0"_L1, "#BAB3A7"_L1, "#413D38"_L1, "#8A8376"_L1,
                             "#74C9BF"_L1,        "#0C2321"_L1, "#2F4442"_L1, "#4A4526"_L1, "#2F2C29"_L1,
                             "#363330"_L1,        "#9B958B"_L1, "#F2BE6B"_L1, "#FF9C8C"_L1, "#171614"_L1};
    return theme;
}

const Theme &Theme::of(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightnessF() < 0.5F ? dark() : light();
}

const Theme &Theme::of(const QWidget *)
{
    return of(QApplication::palette());
}

QPalette Theme::palette() const
{
    QPalette palette;
    const std::initializer_list<std::pair<QPalette::ColorRole, QColor>> colors{
        {QPalette::Window, ground},     {QPalette::WindowText, text},
        {QPalette::Base, field},        {QPalette::AlternateBase, alternate},
        {QPalette::Text, text},         {QPalette::PlaceholderText, quiet},
        {QPalette::Button, field},      {QPalette::ButtonText, text},
        {QPalette::Highlight, accent},  {QPalette::HighlightedText, onAccent},
        {QPalette::ToolTipBase, panel}, {QPalette::ToolTipText, text},
        {QPalette::Light, panel},       {QPalette::Midlight, head},
        {QPalette::Dark, edge},         {QPalette::Shadow, edge},
        {ThemeRole::quiet, quiet},      {ThemeRole::strong, accent},
        {ThemeRole::line, line},        {ThemeRole::mainRim, accent}};
    for (const auto &[role, color] : colors)
        palette.setColor(role, color);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::PlaceholderText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Base, locked);
    palette.setColor(QPalette::Disabled, QPalette::Button, locked);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, line);
    return palette;
}

QPalette Theme::panelPalette(const QColor &fill, const QColor &ink) const
{
    const QColor background = fill.isValid() ? fill : panel;
    QPalette palette;
    palette.setColor(QPalette::Window, background);
    palette.setColor(QPalette::WindowText, ink.isValid() ? ink : text);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, ink.isValid() ? ink : disabledText);
    palette.setColor(ThemeRole::quiet, ink.isValid() ? ink : quiet);
    palette.setColor(ThemeRole::strong, ink.isValid() ? ink : accent);
    palette.setColor(ThemeRole::line, ink.isValid() ? ink : line);
    palette.setColor(ThemeRole::mainRim, ink.isValid() ? ink : accent);
    return palette;
}

QString Theme::styleSheet() const
{
    QString sheet(sheetTemplate);
    // Half way between line and edge on the field: a handle that is seen and stays quiet beside the words.
    const QColor handle = scheme == Icons::Scheme::Dark ? QColor("#6E675D"_L1) : QColor("#AFA797"_L1);
    const std::initializer_list<std::pair<QLatin1StringView, QColor>> tokens{
        {"@disabledText"_L1, disabledText},
        {"@onAccent"_L1, onAccent},
        {"@alternate"_L1, alternate},
        {"@pressed"_L1, pressed()},
        {"@accent"_L1, accent},
        {"@handle"_L1, handle},
        {"@locked"_L1, locked},
        {"@panel"_L1, panel},
        {"@field"_L1, field},
        {"@soft"_L1, soft},
        {"@mark"_L1, mark},
        {"@line"_L1, line},
        {"@edge"_L1, edge},
        {"@head"_L1, head},
        {"@text"_L1, text},
        {"@bar"_L1, bar}};
    for (const auto &[token, color] : tokens)
        sheet.replace(token, color.name());
    return sheet;
}

void Theme::apply(QApplication &application)
{
    const QPalette platform = QApplication::palette();
    QFont base = QApplication::font();
    base.setPointSizeF(std::max(basePoints, points(base)));
    QApplication::setFont(base);
    if (SystemLook::isHighContrast(platform)) {
        QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
        QApplication::setPalette(platform);
        forgetSmallFonts(base);
        return;
    }
    const Theme &theme = of(platform);
    // A panel hands its colours on to what stands on it, which a style sheet would otherwise stop.
    QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles);
    QApplication::setStyle(new HouseStyle(theme));
    QApplication::setPalette(theme.palette());
    application.setStyleSheet(theme.styleSheet());
    forgetSmallFonts(base);
}

QFont TypeScale::label()
{
    return step(10);
}

QFont TypeScale::body()
{
    return step(basePoints);
}

QFont TypeScale::strong()
{
    return step(basePoints, QFont::DemiBold);
}

QFont TypeScale::group()
{
    return step(12, QFont::DemiBold);
}

QFont TypeScale::cardTitle()
{
    return step(13, QFont::DemiBold);
}

QFont TypeScale::emptyTitle()
{
    return step(16, QFont::DemiBold);
}

QFont TypeScale::windowTitle()
{
    return step(17.5, QFont::DemiBold);
}

QFont TypeScale::date()
{
    return step(22, QFont::DemiBold);
}

int TypeScale::wide(int pixels)
{
    return qRound(pixels * growth());
}

double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] =
        std::minmax({luminance(one), luminance(other)}); // by value: the two are temporaries
    return (lighter + 0.05) / (darker + 0.05);
}

QColor quietOn(const QColor &background, const QColor &ink)
{
    constexpr double leastContrast = 5;
    constexpr int mostSteps = 20;
    QColor quiet = ink;
    for (int step = 1; step <= mostSteps; ++step) {
        const auto nearer = [step](int from, int to) { return from + (to - from) * step / 40; };
        const QColor next(nearer(ink.red(), background.red()), nearer(ink.green(), background.green()),
                          nearer(ink.blue(), background.blue()));
        if (contrast(next, background) < leastContrast)
            break;
        quiet = next;
    }
    return quiet;
}

QColor inkOn(const QColor &background)
{
    const QColor black(0, 0, 0), white(255, 255, 255);
    return contrast(black, background) >= contrast(white, background) ? black : white;
}
