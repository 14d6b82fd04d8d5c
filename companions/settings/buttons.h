// What the buttons of dialogs say.
#pragma once

class QDialogButtonBox;
class QMessageBox;

namespace korvel::settings {

/// Gives the standard buttons of a dialog the words of the editor's catalogue. The toolkit's own
/// are English where its catalogues are not installed.
void nameButtons(const QDialogButtonBox &buttons);
void nameButtons(const QMessageBox &box);

} // namespace korvel::settings
