// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <optional>

/// Whether dates are read and written month first ("USA") or day first ("OTHER"). Decided at start.
enum class DateStyle { Usa, Other };

/// How the main window fills the screen. The numbers are those of the display-mode record.
enum class ScreenMode { FullScreen = 0, Smaller = 9 };

/// The household's name: at most 15 characters, longer input is cut.
class FamilyName
{
public:
    static constexpr qsizetype maximumLength = 15;

    FamilyName() = default;
    explicit FamilyName(const QString &name)
        : m_name(name.left(maximumLength))
    {}

    const QString &text() const { return m_name; }
    bool isEmpty() const { return m_name.isEmpty(); }

    /// The main window's caption: the name before " Quillery", or "Quillery" alone.
    QString caption() const;

    bool operator==(const FamilyName &) const = default;

private:
    QString m_name;
};

/// Which of the 21 areas of the program ask for the password. A flag is set by the text "YES", trailing
/// blanks aside.
class ProtectedAreas
{
public:
    static constexpr int count = 21;

    bool isProtected(int area) const;
    bool isAnyProtected() const;
    void setFlag(int area, const QString &flag) { m_flags.at(std::size_t(area)) = flag; }
    const QString &flag(int area) const { return m_flags.at(std::size_t(area)); }

    bool operator==(const ProtectedAreas &) const = default;

private:
    std::array<QString, count> m_flags;
};

/// What the password prompt left behind: negative when the user failed or cancelled. `PasswordControl` is put
/// in before the prompt to tell it that it guards password control itself.
enum class PasswordGateResult : short { Refused = -1, Open = 0, PasswordControl = 1 };

/// The value of `ProgramState::startup` once the main window has finished its first activation.
inline constexpr int StartupDone = 99;

/// Program-wide state: one instance for the whole run, read by every window.
struct ProgramState {
    DateStyle dateStyle = DateStyle::Usa;
    FamilyName familyName;
    ProtectedAreas protectedAreas;
    PasswordGateResult passwordGateResult = PasswordGateResult::Open;
    /// The area that the password prompt is asked for, while it is; -1 otherwise.
    int guardedArea = -1;
    ScreenMode screenMode = ScreenMode::FullScreen;
    /// Known once the top toolbar was removed or restored in this run; until then its record says it.
    std::optional<bool> topToolbarRemoved;
    int startup = 0;
};
