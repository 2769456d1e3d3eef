// The last words of a dying process: lines in both log files, written without buffers or locks.
#pragma once

#include <string_view>

#include <QString>

/// Bytes of a line that `writeDirect` writes at most; the rest is cut off.
inline constexpr std::size_t kMaxCrashLineBytes = 1000;

/// The files that `writeCrashLine` appends to. Called once, before the hooks are installed.
void setCrashLinePaths(const QString& appDirLog, const QString& tempLog);

/// Appends a line of UTF-8, ended by carriage return and line feed, to a file, which is created if
/// need be. Only system calls that a signal handler may make; a fault is not reported. An empty
/// path does nothing.
void writeDirect(std::string_view line, const char* path);

/// Writes the line to the log beside the executable, then to the temporary one.
void writeCrashLine(std::string_view line);

/// Makes faults, aborts, `std::terminate` and exhausted memory leave their line before the
/// process dies of them; on threads that catch their faults exhausted memory is thrown as
/// `std::bad_alloc` instead. The stack that faults are handled on, so that an overflow can be
/// reported too, serves the calling thread only; other threads handle their faults on their own
/// stack.
void installCrashHooks();
