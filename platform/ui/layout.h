// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace platform::ui {

class Control;

/// Where the controls of a form stand, as a tree that a desktop turns into real places. Pixels are its
/// affair.
struct LayoutNode {
  enum class Kind {
    kColumn,        ///< children one under the other
    kRow,           ///< children side by side
    kGrid,          ///< rows one under the other whose fields and labels share their columns
    kButtonColumn,  ///< buttons of equal width one under the other
    kButtonRow,     ///< buttons of equal width side by side
    kGroup,   ///< a framed box with `text` as its caption ("" for a frame alone) around its children, as a
              ///< column
    kField,   ///< a control with its label on the left (buttons and check boxes carry their own text)
    kBefore,  ///< a control with its label behind it, in a row
    kOver,    ///< a control with its label above it
    kBare,    ///< a control without its label
    kNote,    ///< a static text that wraps, `text`
    kStretch  ///< room that takes up what is left
  };

  Kind kind;
  Control* control = nullptr;
  std::string text;
  std::vector<LayoutNode> children;
  int weight = 1;      ///< share of the room among the children of a row
  int characters = 0;  ///< width of the field in average characters; 0: what the kind of control takes
};

using LayoutNodes = std::initializer_list<LayoutNode>;

inline LayoutNode Column(LayoutNodes children) { return {LayoutNode::Kind::kColumn, nullptr, {}, children}; }
inline LayoutNode Row(LayoutNodes children) { return {LayoutNode::Kind::kRow, nullptr, {}, children}; }
inline LayoutNode Grid(LayoutNodes rows) { return {LayoutNode::Kind::kGrid, nullptr, {}, rows}; }
inline LayoutNode ButtonColumn(LayoutNodes buttons) {
  return {LayoutNode::Kind::kButtonColumn, nullptr, {}, buttons};
}
inline LayoutNode ButtonRow(LayoutNodes buttons) {
  return {LayoutNode::Kind::kButtonRow, nullptr, {}, buttons};
}
inline LayoutNode Group(std::string caption, LayoutNodes children) {
  return {LayoutNode::Kind::kGroup, nullptr, std::move(caption), children};
}
inline LayoutNode Field(Control& control) { return {LayoutNode::Kind::kField, &control, {}, {}}; }
inline LayoutNode Before(Control& control) { return {LayoutNode::Kind::kBefore, &control, {}, {}}; }
inline LayoutNode Over(Control& control) { return {LayoutNode::Kind::kOver, &control, {}, {}}; }
inline LayoutNode Bare(Control& control) { return {LayoutNode::Kind::kBare, &control, {}, {}}; }
inline LayoutNode Note(std::string text) { return {LayoutNode::Kind::kNote, nullptr, std::move(text), {}}; }
inline LayoutNode Stretch() { return {LayoutNode::Kind::kStretch, nullptr, {}, {}}; }
/// Gives a child of a row another share of the room than 1.
inline LayoutNode Weighted(int weight, LayoutNode node) {
  node.weight = weight;
  return node;
}

/// Makes a field as wide as that many average characters, however much room there is.
inline LayoutNode Characters(int count, LayoutNode node) {
  node.characters = count;
  return node;
}

}  // namespace platform::ui
