#include "results/tree.h"

#include <limits>
#include <stdexcept>

namespace velmora_app {
namespace {

/// Separates the three texts of a node in the text table.
constexpr char kSeparator = '\x1F';

}  // namespace

void TreeSnapshot::reserve(std::size_t nodes, std::size_t actions) {
  nodes_.reserve(nodes);
  first_actions_.reserve(nodes);
  actions_.reserve(actions);
}

TreeSnapshot::TextId TreeSnapshot::text_id(std::string_view text) {
  const auto [entry, is_new] =
      text_ids_.try_emplace(std::string(text), static_cast<TextId>(texts_.size()));
  if (is_new) {
    if (texts_.size() > std::numeric_limits<TextId>::max()) {
      text_ids_.erase(entry);
      throw std::length_error("Too many different action texts in one tree");
    }
    texts_.emplace_back(text);
  }
  return entry->second;
}

void TreeSnapshot::append(const NodeMeta& node) {
  append_facts(node);
  append_actions(node.actions);
}

void TreeSnapshot::append_facts(const NodeMeta& node) {
  Node record{};
  record.pot = node.pot;
  record.invested_oop = node.invested_oop;
  record.invested_ip = node.invested_ip;
  record.type = text_id(node.node_type + kSeparator + node.chance_deal + kSeparator + node.player);
  nodes_.push_back(record);
}

void TreeSnapshot::append_actions(std::span<const ActionMeta> actions) {
  first_actions_.push_back(static_cast<std::uint32_t>(actions_.size()));
  for (const ActionMeta& action : actions) {
    actions_.push_back(
        {action.frequency, action.child_index, text_id(action.name), text_id(action.action_type)});
  }
}

void TreeSnapshot::clear_actions() {
  first_actions_.clear();
  actions_.clear();
}

void TreeSnapshot::shrink_to_fit() {
  nodes_.shrink_to_fit();
  first_actions_.shrink_to_fit();
  actions_.shrink_to_fit();
}

std::size_t TreeSnapshot::num_actions(std::size_t node) const {
  const std::size_t end =
      node + 1 < first_actions_.size() ? first_actions_[node + 1] : actions_.size();
  return end - first_actions_.at(node);
}

bool TreeSnapshot::has_children(std::size_t node) const {
  return num_actions(node) != 0;
}

NodeMeta TreeSnapshot::node(std::size_t index) const {
  NodeMeta node;
  const std::size_t actions = num_actions(index);
  if (index < nodes_.size()) {
    const Node& record = nodes_[index];
    const std::string& type = texts_[record.type];
    const std::size_t first = type.find(kSeparator);
    const std::size_t second = type.find(kSeparator, first + 1);
    node.node_type = type.substr(0, first);
    node.chance_deal = type.substr(first + 1, second - first - 1);
    node.player = type.substr(second + 1);
    node.pot = record.pot;
    node.invested_oop = record.invested_oop;
    node.invested_ip = record.invested_ip;
  }
  node.actions.reserve(actions);
  for (std::size_t a = 0; a < actions; ++a) {
    const Action& action = actions_[first_actions_[index] + a];
    node.actions.push_back(
        {texts_[action.name], texts_[action.action_type], action.frequency, action.child_index});
  }
  return node;
}

std::size_t TreeSnapshot::memory_bytes() const {
  return nodes_.capacity() * sizeof(Node) + first_actions_.capacity() * sizeof(std::uint32_t) +
         actions_.capacity() * sizeof(Action);
}

}  // namespace velmora_app
