// Results as JSON on standard output.
#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include <QJsonObject>

#include "memory_estimate.h"
#include "solve_session.h"

/// Iteration and exploitability in chips.
using Measure = std::pair<std::uint32_t, float>;

QJsonObject estimate_object(const velmora_app::MemoryEstimate& estimate);

/// The keys are the same for a failed run; its figures are those that were known when it ended.
QJsonObject result_object(const velmora_app::SolveResult& result,
                          const std::optional<velmora_app::MemoryEstimate>& estimate,
                          const std::vector<Measure>& history);

/// Throws `InputFault` if standard output doesn't take it.
void print_json(const QJsonObject& object);
