// Makes, or finds, the definition of an external reference and a reference to it that is in no space yet.
#pragma once

#include "sdk/db/block_reference.h"

#include <QString>

// With a block name (the dialog's phase) nothing is thrown for the file. Without one (the attach phase) a
// file that can't be read throws the reader's OdError, and one that comes back to the current drawing
// eSelfReference. False, with the outs untouched, without a database, a path or a possible name.
// `hadDefinition`: the definition was there before the running command.
bool createXRefReference(const QString& path, QString& blockName, bool overlay,
                         OdDbBlockReferencePtr& reference, bool& hadDefinition, OdDbObjectId& blockId);
// Takes back what createXRefReference has made: the definition with its contents, and the reference.
void eraseNewXRef(const OdDbBlockReferencePtr& reference);
