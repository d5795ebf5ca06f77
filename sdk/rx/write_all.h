// Writing to a disk that may take a part of what is written.
#pragma once

#include <string_view>

class QFileDevice;
class QIODevice;
class QString;

// Writes on until all of it is written; false when no more goes in, with the reason in the device. A single
// write of which a part was taken tells none.
bool odWriteAll(QIODevice& device, std::string_view bytes);
// Why writing to the file, which is given up, has failed. Qt knows no reason when the disk has taken a part
// of its buffer: one more byte then tells.
QString odWriteFailure(QFileDevice& file);
