// What a start of a solve is asked with, and why it may be refused.
#pragma once

#include <vector>

#include <QString>
#include <QVariantMap>

#include "spot.h"

/// The line of the log about a start.
QString describeSolveRequest(const QVariantMap& map);

/// Everything that keeps the spot of a solve configuration map from being solved. The board is
/// looked at as it stands in the map, before anything is dropped from it.
std::vector<velmora_app::SpotFault> spotFaults(const QVariantMap& map);

/// The fault to tell of first: a field with a fault in it, or else what is missing first. There is
/// at least one.
const velmora_app::SpotFault& mostUrgent(const std::vector<velmora_app::SpotFault>& faults);
/// Why a solve with these faults is refused, in the user's language. Empty without faults.
QString refusalOf(const std::vector<velmora_app::SpotFault>& faults);
/// The same for a solve configuration map.
QString refusalOf(const QVariantMap& map);

/// What the window calls a field; empty for the spot as a whole.
QString fieldTitle(const QString& field);
