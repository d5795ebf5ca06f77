// The two stores of an option and the conversions on the way into and out of them.
#include "options/store/option_values.h"

#include "host/app.h"
#include "host/documents.h"
#include "host/qt_application.h"
#include "options/store/option_store.h"

namespace {

struct Place {
    CXString key, section, store;
    bool isVariable() const { return store.Compare(kStoreSysVar) == 0; }
    bool isProfile() const { return store.Compare(kStoreProfile) == 0; }
};

int findPlace(IParam* node, IParam* parent, Place& place) {
    return findStore(node, parent, place.key, place.section, place.store);
}

// The variable's buffer, or null when it doesn't exist or can't be read.
OdResBufPtr fetchVariable(const OdString& name, OdRxObject* context) {
    OdResBufPtr buffer;
    if (HostDocManager()->varService()->getVar(name, &buffer, context, 0) == kVarUnavailable)
        return {};
    return buffer;
}

// A read passes a context, which lives as long as the call.
OdResBufPtr readVariable(const CXString& key) {
    const OdRxObjectPtr context = newReadContext();
    return fetchVariable(OdString(key, CP_LOCAL_8BIT), context.get());
}

Ref<IParam> profileSection(const CXString& section, int create) {
    return openChild(appService<IProfile>().get(), section, create);
}

// `fromBuffer` converts a variable, `fromProfile` reads the key of a section; both give 1 for a value read.
template <class FromBuffer, class FromProfile>
int readOption(IParam* node, IParam* parent, FromBuffer fromBuffer, FromProfile fromProfile) {
    Place place;
    if (!findPlace(node, parent, place))
        return 0;
    if (place.isVariable()) {
        const OdResBufPtr buffer = readVariable(place.key);
        if (buffer.isNull())
            return 0;
        fromBuffer(*buffer);
        return 1;
    }
    if (!place.isProfile())
        return 0;
    const Ref<IParam> section = profileSection(place.section, 0);
    return section ? fromProfile(section.get(), place.key.c_str()) : 0;
}

template <class Value, class FromBuffer>
int readTyped(IParam* node, IParam* parent, Value* out, FromBuffer fromBuffer) {
    return readOption(
        node, parent, [&](const OdResBuf& buffer) { *out = fromBuffer(buffer); },
        [&](IParam* section, const char* key) { return readValue(section, key, out); });
}

template <class Value>
Value valueOrDefault(int (*read)(IParam*, IParam*, Value*), IParam* node, IParam* parent) {
    Value value{};
    if (!read(node, parent, &value))
        readValue(node, "Default", &value);
    return value;
}

// The buffer that was read goes back, whether `intoBuffer` has changed it or not. Writes pass no context.
template <class IntoBuffer> void writeVariable(const CXString& key, IntoBuffer intoBuffer) {
    const OdString name(key, CP_LOCAL_8BIT);
    const OdResBufPtr buffer = fetchVariable(name, nullptr);
    if (buffer.isNull())
        return;
    intoBuffer(*buffer);
    HostDocManager()->varService()->setVar(name, buffer.get(), nullptr, 0);
}

template <class Value, class IntoBuffer>
void writeOption(IParam* node, IParam* parent, const Value& value, IntoBuffer intoBuffer) {
    Place place;
    if (!findPlace(node, parent, place))
        return;
    if (place.isVariable())
        writeVariable(place.key, intoBuffer);
    else if (place.isProfile())
        writeValue(profileSection(place.section, 1).get(), place.key, value);
}

// A variable of a class that isn't named here goes back unchanged, which is meant.
void setInteger(OdResBuf& buffer, int value) {
    switch (OdDxfCode::_getType(buffer.restype())) {
    case OdDxfCode::Bool:
        buffer.setBool(value != 0);
        break;
    case OdDxfCode::Integer8:
    case OdDxfCode::Integer16:
        buffer.setInt16(static_cast<std::int16_t>(value));
        break;
    case OdDxfCode::Integer32:
        buffer.setInt32(value);
        break;
    default:
        break;
    }
}

int integerOf(const OdResBuf& buffer) {
    if (OdDxfCode::_getType(buffer.restype()) == OdDxfCode::Bool)
        return buffer.getBool();
    return buffer.getInt32();
}

// Wide text and save-format numbers show a system variable but never change it; that is meant.
void leaveUnchanged(OdResBuf&) {}

} // namespace

int readIntOption(IParam* node, IParam* parent, int* out) { return readTyped(node, parent, out, integerOf); }

int readDoubleOption(IParam* node, IParam* parent, double* out) {
    return readTyped(node, parent, out, [](const OdResBuf& buffer) { return buffer.getDouble(); });
}

int readStringOption(IParam* node, IParam* parent, CXStringW* out) {
    return readTyped(node, parent, out,
                     [](const OdResBuf& buffer) { return CXStringW(buffer.getString().c_str()); });
}

int readColorOption(IParam* node, IParam* parent, unsigned int* out) {
    return readTyped(node, parent, out,
                     [](const OdResBuf& buffer) { return static_cast<unsigned int>(buffer.getInt32()); });
}

int readSaveFormatOption(IParam* node, IParam* parent, CKWVariant* out) {
    // A system variable gives no save-format number: the read succeeds with an empty variant, which is meant.
    return readOption(
        node, parent, [&](const OdResBuf&) { out->Clear(); },
        [&](IParam* section, const char* key) { return section->getValue(key, out); });
}

int intOrDefault(IParam* node, IParam* parent) { return valueOrDefault(readIntOption, node, parent); }
double realOrDefault(IParam* node, IParam* parent) { return valueOrDefault(readDoubleOption, node, parent); }
CXStringW textOrDefault(IParam* node, IParam* parent) {
    return valueOrDefault(readStringOption, node, parent);
}
unsigned int colorOrDefault(IParam* node, IParam* parent) {
    return valueOrDefault(readColorOption, node, parent);
}

void writeIntOption(IParam* node, IParam* parent, int value) {
    writeOption(node, parent, value, [=](OdResBuf& buffer) { setInteger(buffer, value); });
}

void writeDoubleOption(IParam* node, IParam* parent, double value) {
    writeOption(node, parent, value, [=](OdResBuf& buffer) { buffer.setDouble(value); });
}

void writeTextOption(IParam* node, IParam* parent, const CXString& value) {
    writeOption(node, parent, value,
                [&](OdResBuf& buffer) { buffer.setString(OdString(value, CP_LOCAL_8BIT)); });
}

void writeStringOption(IParam* node, IParam* parent, const CXStringW& value) {
    writeOption(node, parent, value, leaveUnchanged);
}

void writeColorOption(IParam* node, IParam* parent, unsigned int value) {
    writeOption(node, parent, value,
                [=](OdResBuf& buffer) { buffer.setInt32(static_cast<std::int32_t>(value)); });
}

void writePaletteOption(IParam* node, IParam* parent, unsigned short index) {
    writeOption(node, parent, index, [=](OdResBuf& buffer) { setInteger(buffer, index); });
}

void writeSaveFormatOption(IParam* node, IParam* parent, int number) {
    writeOption(node, parent, number, leaveUnchanged);
}
