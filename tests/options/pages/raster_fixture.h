// The Options dialog with the page of raster formats, and two formats in the store.
#pragma once

#include "host/text.h"
#include "options/pages/raster/raster_format.h"
#include "tests/options/pages/page_fixture.h"

class RasterFixture : public PageFixture {
protected:
    RasterFixture() : PageFixture(kIdRasterFormats) {}

    Ref<IParam> numbers() { return sectionOf(host.ioParams(), "Raster"); }
    Ref<IParam> section(const QByteArray& name) { return sectionOf(host.ioParams(), "Formats\\" + name); }
    // A format at that number, with a description like its name.
    Ref<IParam> addFormat(int number, const char* name) {
        setValue(numbers(), "Format" + QByteArray::number(number), name);
        const Ref<IParam> format = section(name);
        setValue(format, "Description", QString::fromLatin1(name).toStdWString().c_str());
        setValue(format, "DefExt", name);
        return format;
    }
    // A format that may be copied and deleted.
    Ref<IParam> addFreeFormat(int number, const char* name) {
        const Ref<IParam> format = addFormat(number, name);
        setValue(format, "CanDelete", 1);
        return format;
    }
    QString numbered(int number) {
        return textOf(valueOf(host.ioParams(), "Raster", "Format" + QByteArray::number(number)));
    }
    CKWVariant stored(const QByteArray& name, const char* value) {
        return valueOf(host.ioParams(), "Formats\\" + name, value);
    }
    QStringList storedFormats() { return childrenOf(*sectionOf(host.ioParams(), "Formats")); }
    void apply() { click(preferences->applyButton); }
    QString editText(const QDialog& dialog, const char* edit) {
        return named<QLineEdit>(dialog, edit)->text();
    }
};
