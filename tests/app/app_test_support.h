// What the tests of these programs share.
#pragma once

#include <functional>

#include <QVariantMap>

#include "file_test_support.h"

/// Solve configuration map of a river spot that solves in milliseconds. OOP holds aces only.
QVariantMap riverSpot();
/// The same, with more iterations than any test waits for and a target that is never reached.
QVariantMap endlessSpot();

/// Runs the event loop until the condition holds; false if it does not within a minute.
bool waitUntil(const std::function<bool()>& condition);
