#include "worker/svg/inspection/svg_nesting.h"

#include <algorithm>

namespace norvex::engine {
namespace {

struct Edge {
  int to = 0;
  qint64 weight = 0;
};

/// Longest way through a graph whose cycles count as what can be walked in them at most. Tarjan's components,
/// without recursion: the graph is as deep as a hostile document makes it.
class LongestWay {
 public:
  LongestWay(QList<QList<Edge>> edges, QList<qint64> ends)
      : edges_(std::move(edges)), ends_(std::move(ends)) {
    const qsizetype count = edges_.size();
    index_.fill(-1, count);
    low_.fill(0, count);
    nextEdge_.fill(0, count);
    component_.fill(-1, count);
  }
  qint64 from(int start);

 private:
  void enter(int node) {
    index_[node] = low_[node] = counter_++;
    stack_.append(node);
    way_.append(node);
  }
  void closeComponent(int root);

  const QList<QList<Edge>> edges_;
  const QList<qint64> ends_;  // what a way that ends in the node still has before it
  QList<int> index_, low_, nextEdge_, component_, stack_, way_;
  QList<qint64> longest_;  // by component
  int counter_ = 0;
};

// Components come out in reverse order: whatever a component leads to has its length already.
void LongestWay::closeComponent(int root) {
  QList<int> members;
  int member = -1;
  do {
    member = stack_.takeLast();
    component_[member] = int(longest_.size());
    members.append(member);
  } while (member != root);
  qint64 inside = 0, edgesInside = 0;
  qint64 beyond = 0;
  for (const int node : members) {
    beyond = std::max(beyond, ends_[node]);
    for (const Edge& edge : edges_[node]) {
      if (component_[edge.to] == component_[root]) {
        inside += edge.weight;
        ++edgesInside;
      } else {
        beyond = std::max(beyond, edge.weight + longest_[component_[edge.to]]);
      }
    }
  }
  // The renderer follows every reference once on its way, and between two of them it may pass all that is
  // around.
  longest_.append(inside * edgesInside + beyond);
}

qint64 LongestWay::from(int start) {
  enter(start);
  while (!way_.isEmpty()) {
    const int node = way_.last();
    if (nextEdge_[node] < edges_[node].size()) {
      const int to = edges_[node][nextEdge_[node]++].to;
      if (index_[to] < 0) {
        enter(to);
      } else if (component_[to] < 0) {
        low_[node] = std::min(low_[node], index_[to]);
      }
      continue;
    }
    way_.removeLast();
    if (!way_.isEmpty()) low_[way_.last()] = std::min(low_[way_.last()], low_[node]);
    if (low_[node] == index_[node]) closeComponent(node);
  }
  return longest_[component_[start]];
}

}  // namespace

void SvgNesting::open(const QString& id) {
  deepest_ = std::max(deepest_, ++depth_);
  int element = -1;
  if (!id.isEmpty()) {
    element = int(elements_.size());
    elements_.append({depth_, depth_, enclosing_});
    if (!byId_.contains(id)) byId_.insert(id, element);  // of two equal ids the first counts
    enclosing_ = element;
  }
  open_.append(element);
  for (int around = enclosing_; around >= 0 && elements_[around].deepestInside < depth_;
       around = elements_[around].enclosing)
    elements_[around].deepestInside = depth_;
}

void SvgNesting::refer(const QString& id) {
  references_.append({enclosing_, depth_, id});
}

void SvgNesting::close() {
  if (open_.isEmpty()) return;
  const int element = open_.takeLast();
  if (element >= 0) enclosing_ = elements_[element].enclosing;
  --depth_;
}

qint64 SvgNesting::deepest() const {
  if (references_.isEmpty() || elements_.isEmpty()) return deepest_;
  // Node 0 is the document, node i + 1 is elements_[i].
  const qsizetype count = elements_.size() + 1;
  QList<QList<Edge>> edges(count);
  QList<qint64> ends(count);
  // The document is no level: the ways from it begin with the level of the root element.
  const auto depthOf = [&](int element) { return element < 0 ? 1 : elements_[element].depth; };
  ends[0] = deepest_;
  for (int i = 0; i < elements_.size(); ++i) {
    const Element& element = elements_[i];
    ends[i + 1] = element.deepestInside - element.depth + 1;
    edges[element.enclosing + 1].append({i + 1, element.depth - depthOf(element.enclosing)});
  }
  for (const Reference& reference : references_) {
    const auto to = byId_.constFind(reference.to);
    if (to != byId_.cend())
      edges[reference.from + 1].append({*to + 1, reference.depth - depthOf(reference.from) + 1});
  }
  return LongestWay(std::move(edges), std::move(ends)).from(0);
}

}  // namespace norvex::engine
