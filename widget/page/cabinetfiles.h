// The list of cabinet files: what the device holds, and the page that shows it. GUI thread.
#pragma once

#include <QStringList>

namespace VASK
{
class MenuDirectory;

/// The names of the files on the device; false if there are none.
bool cabinetFileNames(QStringList &names);
/// Shows the names in the page and hides the other rows.
void showCabinetFiles(MenuDirectory &page, const QStringList &names);
/// The same for a page that stands open while the device brings others.
void reloadCabinetFiles(MenuDirectory &page);
/// Brings the page up to date before it opens. False, and the page above has told so, if there are no files.
bool prepareCabinetFiles(MenuDirectory &above, MenuDirectory &page);
} // namespace VASK
