// Runs a modal dialog so that an exception that leaves one of its slots ends the dialog and reaches the
// caller.
#pragma once

class QDialog;

// As QDialog::exec. An exception thrown inside the dialog's event loop hides the dialog, leaves the loop and
// is thrown again from here; QDialog's own loop would leave the visible dialog with a pointer to a dead loop.
int runModal(QDialog& dialog);
