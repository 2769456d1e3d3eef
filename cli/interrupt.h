// Ctrl+C and a polite request to end.
#pragma once

/// From now on SIGINT and SIGTERM set a flag. A second signal ends the program at once.
void catch_interrupts();
/// True once a signal has come.
bool interrupted();
