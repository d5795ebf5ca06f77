// Code pages that Qt lacks and the C library has.
#pragma once

#include <string>

class QTextCodec;

// Null when the C library does not know the page either. Kept for the life of the process.
QTextCodec* dxfIconvCodec(const std::string& name);
