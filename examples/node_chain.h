// A chain of nodes that is linked by hand.
#ifndef VELKORD_EXAMPLES_NODE_CHAIN_H_
#define VELKORD_EXAMPLES_NODE_CHAIN_H_

#include <utility>

#include "handles.h"

// ASN1_AddSequence and its like copy the node, walk the whole chain each time and cannot report
// that memory ran out. Here the node itself goes in, and the last one is known.
class NodeChain {
 public:
  // Takes a single node.
  void Append(NodePtr node) {
    Anybuf* const added = node.get();
    if (last_ == nullptr) {
      head_ = std::move(node);
    } else {
      last_->next = node.release();
    }
    // cppcheck-suppress danglingLifetime ; the node lives on in the chain.
    last_ = added;
  }

  // Null when nothing was appended, which the library takes for a chain without elements.
  const Anybuf* Head() const { return head_.get(); }

 private:
  NodePtr head_;
  Anybuf* last_ = nullptr;
};

#endif  // VELKORD_EXAMPLES_NODE_CHAIN_H_
