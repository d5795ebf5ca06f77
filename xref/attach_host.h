// The way from the attach command to the current drawing, to the user and to the optional attach services.
#pragma once

#include "host/attach_services.h"
#include "host/documents.h"
#include "sdk/db/database.h"

#include <QString>

// What may become of a notice that the event interface shows.
enum NoticeKind { kFileNotice = 0, kInputNotice = 12, kConflictNotice = 14 };
enum { kNoticeCancelled = 2 };

namespace attach {

OdDbDatabasePtr database();         // null without a document
HostCommandIO* io();                // the document's, or the manager's own one
QString documentFile();             // empty for a drawing that was never saved
bool isUnsaved();                   // the database or the document has no file name
OdString word(const wchar_t* text); // in the user's language
// Puts a finished text in front of the user; the answer is that of the event interface, 0 without one.
int notice(NoticeKind kind, const OdString& text);
// Both ask the attach services: silent, and false, without them.
void refuse(const OdString& text);
bool numbersTakenNames();

} // namespace attach

// Hands a text to the attach services; silent without them.
void reportToConsole(HostCommandIO* io, const OdString& text);
