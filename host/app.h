// The application object of the host and the way to any of its services.
#pragma once

#include "host/ref.h"

class IAppInterior : public IKWUnknown {
public:
    virtual const wchar_t* rootDirectory() = 0; // the application's data root
    virtual int applicationMode() = 0;
};

extern IKWUnknown* theOnlyIApp; // null before the host has started

// A service of the application, or null.
template <class I> Ref<I> appService() {
    const auto app = Ref<IKWUnknown>::share(theOnlyIApp);
    return queryFor<I>(app.get());
}

// Translation of a text of the data files; the result is the host's, to be copied at once. Null stands for
// the empty text.
const wchar_t* Supp_Translate(const wchar_t* text);
const wchar_t* Supp_Translate(const char* text);

using HeapHandle = void*;
HeapHandle Mem_DefaultHeap(int);
