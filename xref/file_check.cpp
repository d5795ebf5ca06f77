// The same steps that attaching begins with, so that what passes here does not fail there.
#include "xref/file_check.h"

#include "host/text.h"
#include "xref/attach_failures.h"
#include "xref/attach_host.h"
#include "xref/attach_reference.h"
#include "xref/create_xref_reference.h"

namespace {

bool makesReference(const OdString& path, QString& blockName) {
    const QString file = hostqt::qString(path);
    if (isCircular(file)) {
        tellCircle(attach::io(), path);
        return false;
    }
    OdDbBlockReferencePtr reference;
    bool hadDefinition = false;
    OdDbObjectId blockId;
    const bool made = createXRefReference(file, blockName, false, reference, hadDefinition, blockId);
    if (!made)
        tellNoName(path);
    return made;
}

} // namespace

bool canBeAttached(const QString& path, QString* blockName) {
    QString name; // from the file
    const OdString file = hostqt::odString(path);
    try {
        if (!path.contains(QLatin1Char(';'))) // which stands between the files of a list
            return makesReference(file, blockName ? *blockName : name);
        tellSemicolon(file);
    } catch (const OdError& error) {
        tellAttachFailure(attach::io(), file, error);
    }
    return false;
}

QStringList attachableOf(const QStringList& paths) {
    QStringList attachable;
    for (const QString& path : paths)
        if (canBeAttached(path))
            attachable << path;
    return attachable;
}
