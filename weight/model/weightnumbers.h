// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

/// Weights as texts and as numbers. They have no unit, and are counted in single precision.
namespace WeightNumbers {

/// The weight that `text` begins with after blanks: "180.", "180", "180,0" and "180 lb" are 180. Nothing for
/// what begins with none, for 0 and for 100,000 and more.
std::optional<float> number(QByteArrayView text);
std::optional<float> number(QStringView text);

/// The weight that `text` is as a whole, before it is rounded; a comma counts as the point. Nothing where it
/// is none.
std::optional<double> typed(QStringView text);

/// A weight in the format "###.#", as it is shown and stored: "180.", "178.5".
QString text(double weight);

/// A difference, rounded to one decimal before its sign is decided: "+0.4", "0", "-1.3", "+2".
QString difference(double difference);

} // namespace WeightNumbers
