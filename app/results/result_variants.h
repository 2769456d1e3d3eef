// The records of the result queries in the shapes that the pages and the project files read.
#pragma once

#include <QVariantList>
#include <QVariantMap>

#include "results/actions.h"
#include "results/equity.h"
#include "results/hands.h"
#include "results/strategy.h"

/// "weights", "dominantActionTypes" and "actionProbs" by label, "actionNames".
QVariantMap variantOf(const velmora_app::NodeHandStrategy& grid);
/// Maps of "name", "actionType", "frequency", "combos", "equity" and "ev".
QVariantList variantOf(const velmora_app::NodeActionStats& stats);
/// Maps of "c1", "c2", "weight", "ev", "actionEvs", "buckets" and "actionProbs".
QVariantList variantOf(const velmora_app::NodeHandCombos& combos);
/// Maps of "c1", "c2" and "weight".
QVariantList variantOf(const velmora_app::SeatHandCombos& combos);
/// Maps of "name", "combos" and "actionProbs".
QVariantList variantOf(const velmora_app::NodeHandBuckets& buckets);
QVariantList variantOf(const velmora_app::PocketActionEvs& evs);
/// "winner", "oopStrength" and "ipStrength".
QVariantMap variantOf(const velmora_app::Showdown& showdown);
