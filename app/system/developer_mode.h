// Whether the pages show their developer functions.
#pragma once

/// True if the first of VELMORA_DEV_MODE, DUNMARROW_DEV_MODE and CPP_SOLVER_DEV_MODE that is set
/// and not empty says "1", "true", "yes" or "on". Logs the three and the answer.
bool developerModeOfEnvironment();
