// The solved tree with labels and average frequencies, in compact form.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velmora_app {

struct ActionMeta {
  std::string name;         ///< Label for display, such as "Bet 33%".
  std::string action_type;  ///< Key, such as "bet 33%".
  float frequency = 0;      ///< 0..1
  std::uint32_t child_index = 0;
};

struct NodeMeta {
  std::string node_type;    ///< "decision", "chance" or "terminal".
  std::string chance_deal;  ///< "turn" or "river" at a chance node, else empty.
  std::string player;       ///< "OOP" or "IP" at a decision node, else empty.
  std::int32_t pot = 0;
  std::int32_t invested_oop = 0;
  std::int32_t invested_ip = 0;
  std::vector<ActionMeta> actions;
};

/// A list of `NodeMeta` by node index. A flop tree has millions of nodes that share a few hundred
/// texts, so it keeps 20 bytes a node and 12 bytes an action and makes the records on demand.
class TreeSnapshot {
  using TextId = std::uint16_t;

  struct Node {
    std::int32_t pot;
    std::int32_t invested_oop;
    std::int32_t invested_ip;
    TextId type;  ///< Node type, deal and player in one text.
  };
  struct Action {
    float frequency;
    std::uint32_t child_index;
    TextId name;
    TextId action_type;
  };

 public:
  void reserve(std::size_t nodes, std::size_t actions);
  void append(const NodeMeta& node);
  /// The two halves of `append`, for a source that has the one before the other. Until both have
  /// the same length, a node without facts has empty ones.
  void append_facts(const NodeMeta& node);
  void append_actions(std::span<const ActionMeta> actions);
  void clear_facts() { nodes_.clear(); }
  void clear_actions();
  void shrink_to_fit();

  std::size_t size() const { return first_actions_.size(); }
  bool has_children(std::size_t node) const;
  /// The record of a node. Throws `std::out_of_range`.
  NodeMeta node(std::size_t index) const;
  std::size_t memory_bytes() const;
  /// Bytes of a list of so many nodes, each of which is the child of one action but for the root.
  static double bytes_for(double nodes) {
    return nodes * (sizeof(Node) + sizeof(std::uint32_t) + sizeof(Action));
  }

 private:
  TextId text_id(std::string_view text);
  /// A node's actions reach up to those of the next one.
  std::size_t num_actions(std::size_t node) const;

  std::vector<Node> nodes_;
  std::vector<std::uint32_t> first_actions_;  ///< By node.
  std::vector<Action> actions_;
  std::vector<std::string> texts_;
  std::unordered_map<std::string, TextId> text_ids_;
};

}  // namespace velmora_app
