// Putting the shop script on the shop's server, and looking whether it is there. The outcome is told in a
// box.
#pragma once

namespace marklink {

/// Tries the login; true when it succeeded.
bool FTP_Verbindung_testen();
/// Sends the script, makes sure that it arrived, and sends its companion file.
void FTP_Script_hochladen();
void FTP_Script_suchen();

}  // namespace marklink
