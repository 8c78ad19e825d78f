// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <functional>

/// Which folder is the household's.
namespace HouseholdFolder {

/// Whether a household has kept anything in `folder`. The colours and window sizes that every run of the
/// program leaves behind are nothing of that kind.
bool holdsData(const DataFolder &folder);

/// The folder of what came with the program that lies in `programFolder`: that folder itself, or
/// `share/quillery` beside the `bin` into which the system installed it.
QString filesOfProgram(const QString &programFolder);

/// Can the folder be written to? The real answer outside of tests.
using WriteTest = std::function<bool(const DataFolder &)>;

/// The folder of the program, so that it can be carried about with its data. Where it holds a household, it
/// is never left for another, even if it can only be read. Else, where it cannot be written to, the user's
/// own folder `own`, which is made when it is missing. So it is for an installed program, whoever may write
/// beside it: that place belongs to the system. The folder knows why it is for reading only.
DataFolder choose(const DataFolder &programFolder, const QString &own,
                  const WriteTest &isWritable = &DataFolder::isWritable);

} // namespace HouseholdFolder
