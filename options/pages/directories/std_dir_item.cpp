// Carries a list between the host and the dialog inside a variant.
#include "options/pages/directories/std_dir_item.h"

#include "host/param.h"

template <class W> int CStdParamItem<W>::Load(IKWUnknown* source) {
    const Ref<IParam> params = queryFor<IParam>(source);
    CKWVariant value;
    const bool found = params && params->getValue(key, &value);
    if (found)
        SetValue(value);
    else
        ClearValue();
    return found;
}

template <class W> int CStdParamItem<W>::Store(IKWUnknown* source) {
    const Ref<IParam> params = queryFor<IParam>(source);
    CKWVariant value;
    return params && GetValue(value) && params->setValue(key, &value);
}

template class CStdParamItem<_TWrapper<StdDirList>>;

// The new list is referenced before the old one is dropped: they may be one.
void CStdDirItem::SetValue(const CKWVariant& value) { list = stdDirListOf(value); }

int CStdDirItem::GetValue(CKWVariant& value) {
    value = static_cast<IKWUnknown*>(list.get());
    return 1;
}

void CStdDirItem::ClearValue() { list = Ref<StdDirList>::share(new StdDirList); }

int CStdDirItem::Load(IKWUnknown* source) {
    const Ref<IStdDirs> dirs = queryFor<IStdDirs>(source);
    CKWVariant value;
    const bool found = dirs && dirs->GetDirList(key, &value);
    if (found)
        SetValue(value);
    else
        ClearValue();
    return found;
}

int CStdDirItem::Store(IKWUnknown* source) {
    const Ref<IStdDirs> dirs = queryFor<IStdDirs>(source);
    CKWVariant value;
    return dirs && GetValue(value) && dirs->SetDirList(key, value);
}
