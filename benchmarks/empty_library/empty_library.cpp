// A library that links the same Qt as the module and does nothing: the floor of loading the module.
extern "C" void emptyLibrary();
extern "C" void emptyLibrary() {}
