#include "json_output.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

#include <QJsonArray>
#include <QJsonDocument>

#include "commands.h"

using velmora_app::MemoryEstimate;
using velmora_app::SolveResult;

namespace {

QJsonValue count(std::uint64_t value) {
  constexpr std::uint64_t kLargest = std::numeric_limits<qint64>::max();
  return value <= kLargest ? QJsonValue(static_cast<qint64>(value))
                           : QJsonValue(static_cast<double>(value));
}

/// The double with the same shortest decimal text, so that 0.1 is written as 0.1.
QJsonValue number(float value) {
  if (!std::isfinite(value)) return QJsonValue::Null;
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  double same = 0;
  std::from_chars(text.data(), end, same);
  return same;
}

}  // namespace

QJsonObject estimate_object(const MemoryEstimate& estimate) {
  return {{"complete", estimate.complete},
          {"total_bytes", count(estimate.total_bytes)},
          {"peak_bytes", count(estimate.peak_bytes)},
          {"context_bytes", count(estimate.context_bytes)},
          {"tree_bytes", count(estimate.tree_bytes)},
          {"state_bytes", count(estimate.state_bytes)},
          {"node_count", count(estimate.node_count)},
          {"decision_node_count", count(estimate.decision_node_count)},
          {"oop_hands", count(estimate.oop_hands)},
          {"ip_hands", count(estimate.ip_hands)}};
}

QJsonObject result_object(const SolveResult& result, const std::optional<MemoryEstimate>& estimate,
                          const std::vector<Measure>& history) {
  QJsonArray actions;
  for (std::size_t i = 0; i < result.root_action_names.size(); ++i) {
    actions.append(QJsonObject{{"name", QString::fromStdString(result.root_action_names[i])},
                               {"type", QString::fromStdString(result.root_action_types[i])},
                               {"frequency", number(result.root_action_freqs[i])}});
  }
  QJsonArray measures;
  for (const auto& [iteration, exploitability] : history) {
    measures.append(QJsonArray{count(iteration), number(exploitability)});
  }
  QJsonValue percent;
  if (result.starting_pot > 0) {
    percent = number(result.exploitability / static_cast<float>(result.starting_pot) * 100);
  }
  const MemoryEstimate size = estimate.value_or(MemoryEstimate{});
  QJsonObject object{
      {"success", result.success},
      {"error", QString::fromStdString(result.error)},
      {"board", QString::fromStdString(result.board)},
      {"iterations", count(result.iterations)},
      {"exploitability", number(result.exploitability)},
      {"exploitability_pct", percent},
      {"ev_oop", number(result.ev_oop)},
      {"ev_ip", number(result.ev_ip)},
      {"node_count", count(size.node_count)},
      {"decision_node_count", count(size.decision_node_count)},
      {"oop_hands", count(size.oop_hands)},
      {"ip_hands", count(size.ip_hands)},
      {"state_bytes", count(size.state_bytes)},
      {"root_actions", actions},
      {"history", measures},
      {"seconds", QJsonObject{{"build", result.build_seconds}, {"solve", result.solve_seconds}}}};
  if (result.stopped) object["stopped"] = true;
  if (result.stalled) object["stalled"] = true;
  return object;
}

QByteArray json_text(const QJsonObject& object) {
  return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

void print_json(const QJsonObject& object) {
  const QByteArray text = json_text(object);
  const auto size = static_cast<std::size_t>(text.size());
  if (std::fwrite(text.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0) {
    throw InputFault("The result can't be written to standard output.");
  }
}
