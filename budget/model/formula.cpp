// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/formula.h"

#include "budget/model/amount.h"

#include <cmath>

namespace {

constexpr int deepest = 50; ///< brackets and signs within each other: more of them is noise

/// Reads a formula from left to right; a failure stays until the end.
class Reader
{
public:
    explicit Reader(QStringView text)
        : m_rest(text)
    {}

    std::optional<double> whole()
    {
        const double value = sum(0);
        skipBlanks();
        const bool isWhole = !m_hasFailed && m_rest.isEmpty() && std::isfinite(value);
        return isWhole ? std::optional(value) : std::nullopt;
    }

private:
    double sum(int depth)
    {
        double value = product(depth);
        while (!m_hasFailed) {
            if (take(u'+'))
                value += product(depth);
            else if (take(u'-'))
                value -= product(depth);
            else
                break;
        }
        return value;
    }

    double product(int depth)
    {
        double value = factor(depth);
        while (!m_hasFailed) {
            if (take(u'*'))
                value *= factor(depth);
            else if (take(u'/'))
                value /= factor(depth);
            else
                break;
        }
        return value;
    }

    double factor(int depth)
    {
        if (depth > deepest)
            return fail();
        if (take(u'-'))
            return -factor(depth + 1);
        if (take(u'+'))
            return factor(depth + 1);
        if (!take(u'('))
            return number();
        const double value = sum(depth + 1);
        return take(u')') ? value : fail();
    }

    double number()
    {
        skipBlanks();
        qsizetype end = 0;
        int points = 0;
        while (end < m_rest.size() && isOfNumber(m_rest[end])) {
            points += m_rest[end] == u'.' ? 1 : 0;
            ++end;
        }
        const QStringView digits = m_rest.first(end);
        const bool hasGroups = digits.contains(u',');
        // A comma that separates no thousands is no comma of an amount.
        if (points > 1 || digits.size() == points || (hasGroups && Amount::typed(digits) < 1000))
            return fail();
        m_rest = m_rest.sliced(end);
        return Amount::typed(digits);
    }

    static bool isOfNumber(QChar character)
    {
        return (character >= u'0' && character <= u'9') || character == u'.' || character == u',';
    }

    bool take(char16_t sign)
    {
        skipBlanks();
        if (!m_rest.startsWith(QChar(sign)))
            return false;
        m_rest = m_rest.sliced(1);
        return true;
    }

    void skipBlanks()
    {
        while (!m_rest.isEmpty() && m_rest.front().isSpace())
            m_rest = m_rest.sliced(1);
    }

    double fail()
    {
        m_hasFailed = true;
        return 0;
    }

    QStringView m_rest;
    bool m_hasFailed = false;
};

} // namespace

bool Formula::is(QStringView text)
{
    return text.trimmed().startsWith(u'=');
}

std::optional<double> Formula::value(QStringView text)
{
    return is(text) ? Reader(text.trimmed().sliced(1)).whole() : std::nullopt;
}
