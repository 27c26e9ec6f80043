#pragma once

#include <cstdint>
#include <string>

#include "core/messages.h"
#include "core/paths.h"
#include "platform/files.h"
#include "platform/prompts.h"

namespace nerida {

// Looks for the model library on the CD-ROM drives, asking for the CD until it is there or the user gives up. Sets
// CdDrive and returns true, or tells the user and returns false. With several drives that hold it the last one counts.
bool LocateModelLibrary(Paths& paths, Files& files, Prompts& prompts, Messages& messages);

// Where below a library a model's file lies: folders by thousands, hundreds and half-decades. Error 6 when a part of
// the number does not fit 32 bits.
std::string modelFilePath(const std::string& library, std::int32_t number);

// The full path of a model's file, or an empty text after a failure was shown. scheme lays the library out.
std::string BuildModelPath(const Paths& paths, Messages& messages, std::int32_t number,
                           std::string (*scheme)(const std::string&, std::int32_t) = modelFilePath);

}  // namespace nerida
