#include "tree_snapshot.h"

#include <limits>
#include <stdexcept>

namespace velmora_app {
namespace {

/// Separates the three texts of a node in the text table.
constexpr char kSeparator = '\x1F';

}  // namespace

void TreeSnapshot::reserve(std::size_t nodes, std::size_t actions) {
  nodes_.reserve(nodes);
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
  Node record{};
  record.pot = node.pot;
  record.invested_oop = node.invested_oop;
  record.invested_ip = node.invested_ip;
  record.first_action = static_cast<std::uint32_t>(actions_.size());
  record.type = text_id(node.node_type + kSeparator + node.chance_deal + kSeparator + node.player);
  nodes_.push_back(record);
  for (const ActionMeta& action : node.actions) {
    actions_.push_back(
        {action.frequency, action.child_index, text_id(action.name), text_id(action.action_type)});
  }
}

std::size_t TreeSnapshot::num_actions(std::size_t node) const {
  const std::size_t end =
      node + 1 < nodes_.size() ? nodes_[node + 1].first_action : actions_.size();
  return end - nodes_.at(node).first_action;
}

bool TreeSnapshot::has_children(std::size_t node) const {
  return num_actions(node) != 0;
}

NodeMeta TreeSnapshot::node(std::size_t index) const {
  const Node& record = nodes_.at(index);
  const std::string& type = texts_[record.type];
  const std::size_t first = type.find(kSeparator);
  const std::size_t second = type.find(kSeparator, first + 1);
  NodeMeta node;
  node.node_type = type.substr(0, first);
  node.chance_deal = type.substr(first + 1, second - first - 1);
  node.player = type.substr(second + 1);
  node.pot = record.pot;
  node.invested_oop = record.invested_oop;
  node.invested_ip = record.invested_ip;
  const std::size_t actions = num_actions(index);
  node.actions.reserve(actions);
  for (std::size_t a = 0; a < actions; ++a) {
    const Action& action = actions_[record.first_action + a];
    node.actions.push_back(
        {texts_[action.name], texts_[action.action_type], action.frequency, action.child_index});
  }
  return node;
}

std::size_t TreeSnapshot::memory_bytes() const {
  return nodes_.capacity() * sizeof(Node) + actions_.capacity() * sizeof(Action);
}

}  // namespace velmora_app
