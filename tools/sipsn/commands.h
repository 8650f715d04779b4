// The commands of the tool. Each adds itself to the command line, with its help, and says what to run.
#pragma once

#include "output.h"

#include <CLI/CLI.hpp>

#include <functional>

namespace tool {

// What the command line asks for.
using Task = std::function< Status() >;

void AddDecode( CLI::App &app, Task &task );
void AddEncode( CLI::App &app, Task &task );
void AddSplit( CLI::App &app, Task &task );
void AddCheck( CLI::App &app, Task &task );
void AddReply( CLI::App &app, Task &task );
void AddValue( CLI::App &app, Task &task );
void AddHeaders( CLI::App &app, Task &task );

// The same words for the same argument everywhere.
inline constexpr const char *filesHelp = "Files; standard input for \"-\" or none";

} // namespace tool
