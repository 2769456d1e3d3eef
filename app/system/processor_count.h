// How many solver threads the machine is good for.
#pragma once

/// Processors that this process may use; 1 if the system does not say.
int usableProcessorCount();
/// `systemCount`, or if it is 0 `idealThreadCount`, or if that is below 1 `hardwareConcurrency`;
/// an answer below 2 is 1.
int chooseProcessorCount(unsigned systemCount, int idealThreadCount, unsigned hardwareConcurrency);
