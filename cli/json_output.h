// Results as JSON on standard output.
#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QJsonObject>

#include "memory_estimate.h"
#include "solve_result.h"

/// Iteration and exploitability in chips.
using Measure = std::pair<std::uint32_t, float>;

QJsonObject estimate_object(const velmora_app::MemoryEstimate& estimate);

/// The keys are the same for a failed run; its figures are those that were known when it ended.
/// "stopped" and "stalled" are there only if they are true.
QJsonObject result_object(const velmora_app::SolveResult& result,
                          const std::optional<velmora_app::MemoryEstimate>& estimate,
                          const std::vector<Measure>& history);

/// The text of an object, as `print_json` writes it.
QByteArray json_text(const QJsonObject& object);

/// Throws `InputFault` if standard output doesn't take it.
void print_json(const QJsonObject& object);
