// The body of the command DWGPROPS, apart from the command object that the module registers.
#pragma once

// Shows the drawing properties of the current document and keeps or drops what was done, as the user leaves
// the dialog. Without a database the command is not defined; it then throws OdError.
void runDwgProps();
