// The recording services of the fixture host.
#include "tests/support/fixture_services.h"

#include <algorithm>
#include <cctype>

namespace {

std::string upper(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return std::toupper(c); });
    return name;
}

} // namespace

int FixtureVars::getVar(const OdString& name, OdResBufPtr* out, OdRxObject* context, int) {
    const std::string key = name.toLocal8Bit();
    if (beforeRead)
        beforeRead(key);
    const OdResBufPtr found = value(key);
    reads.push_back({key, found, context != nullptr});
    if (found.isNull())
        return kVarUnavailable;
    *out = found->clone();
    return 0;
}

int FixtureVars::setVar(const OdString& name, OdResBuf* newValue, OdRxObject* context, int) {
    const std::string key = name.toLocal8Bit();
    writes.push_back({key, newValue->clone(), context != nullptr});
    (*this)[key] = newValue->clone();
    return 0;
}

void FixtureVars::set(const std::string& name, bool newValue) {
    OdResBufPtr& buffer = (*this)[name] = OdResBuf::newRb(OdResBuf::kDxfBool);
    buffer->setBool(newValue);
}

void FixtureVars::set(const std::string& name, int newValue, int restype) {
    OdResBufPtr& buffer = (*this)[name] = OdResBuf::newRb(restype);
    buffer->setInt32(newValue);
}

void FixtureVars::set(const std::string& name, double newValue) {
    OdResBufPtr& buffer = (*this)[name] = OdResBuf::newRb(OdResBuf::kRtDouble);
    buffer->setDouble(newValue);
}

void FixtureVars::set(const std::string& name, const wchar_t* newValue) {
    OdResBufPtr& buffer = (*this)[name] = OdResBuf::newRb(OdResBuf::kRtString);
    buffer->setString(newValue);
}

OdResBufPtr FixtureVars::value(const std::string& name) const {
    const auto found = values.find(upper(name));
    return found == values.end() ? OdResBufPtr() : found->second;
}

OdResBufPtr& FixtureVars::operator[](const std::string& name) { return values[upper(name)]; }

int FixtureEvents::notify(int kind, const wchar_t* text, int, int buttons) {
    notices.push_back({kind, QString::fromWCharArray(text), buttons});
    return answer;
}

bool FixtureStdDirs::GetDir(const char* key, tagKWVARIANT* out, int) {
    const auto found = dirs.find(key);
    if (found == dirs.end())
        return false;
    KWVariantCopy(out, CKWVariant(CXStringW(found->second.c_str())));
    return true;
}

bool FixtureStdDirs::GetDirList(const char* key, CKWVariant* out) {
    const auto found = lists.find(key);
    if (found == lists.end())
        return false;
    const Ref<StdDirList> copy = standin::copyOfList(found->second);
    *out = static_cast<IKWUnknown*>(copy.get());
    return true;
}

bool FixtureStdDirs::SetDirList(const char* key, const CKWVariant& value) {
    if (mayStore && !mayStore(key))
        return false;
    stored.push_back(key);
    lists[key] = standin::copyOfList(stdDirListOf(value));
    return true;
}

void FixtureStdDirs::set(const std::string& key, const std::vector<std::wstring>& paths) {
    Ref<StdDirList>& list = lists[key] = Ref<StdDirList>::share(new StdDirList);
    for (const std::wstring& path : paths)
        list->append(standin::newDirEntry(".Local", path.c_str(), 1).get());
}

std::vector<std::wstring> FixtureStdDirs::paths(const std::string& key) const {
    std::vector<std::wstring> found;
    const auto list = lists.find(key);
    if (list != lists.end())
        for (const auto& element : elementsOf(list->second))
            found.push_back(element->GetPath());
    return found;
}
