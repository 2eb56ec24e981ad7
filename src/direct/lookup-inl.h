// Reading the starting tables, for a number type N of lanes-inl.h. Included inside a namespace.

/// The weights of cubic interpolation between nodes at -1, 0, 1, 2.
template <class N>
struct CubicWeights {
  N w0, w1, w2, w3;

  HWY_INLINE CubicWeights(const N& t) {
    const N a = t + 1.0;
    const N b = t - 1.0;
    const N c = t - 2.0;
    w0 = t * b * c * (-1.0 / 6.0);
    w1 = a * b * c * 0.5;
    w2 = a * t * c * (-0.5);
    w3 = a * t * b * (1.0 / 6.0);
  }
  /// Of four nodes that lie side by side in a table, the second one at the index.
  HWY_INLINE N operator()(const double* table, const typename NumberOf<N>::Index& index) const {
    using Number = NumberOf<N>;
    return w0 * Number::gather(table - 1, index) + w1 * Number::gather(table, index) +
           w2 * Number::gather(table + 1, index) + w3 * Number::gather(table + 2, index);
  }
};

/// The node before a place on an axis of equal steps that has another one before it and two behind.
template <class N>
HWY_INLINE N nodeBefore(const N& x, int count) {
  N whole;
  NumberOf<N>::nearest(min(max(x - 0.5, N(1.0)), N(count - 3.0)), whole);
  return whole;
}

/// A place on a line table.
template <class N>
struct LinePlace {
  N node;
  typename NumberOf<N>::Index index;
  CubicWeights<N> weights;

  HWY_INLINE LinePlace(const LineTable& table, const N& coordinate)
      : LinePlace((coordinate - table.axis.low) * table.axis.perUnit()) {}
  HWY_INLINE N operator()(const LineTable::Column& column) const {
    return weights(column.data(), index);
  }

 private:
  HWY_INLINE LinePlace(const N& x)
      : node(nodeBefore(x, LineTable::count)),
        index(NumberOf<N>::nearest(node, node)),
        weights(x - node) {}
};

template <class N>
HWY_INLINE LinePlace<N> placeAtT(const LineTable& table, const N& T) {
  return {table, sqrt(max(constants::criticalTemperature - T, N(0.0)))};
}

template <class N>
HWY_INLINE LinePlace<N> placeAtLogP(const LineTable& table, const N& logP) {
  return {table, sqrt(max(logCriticalPressure - logP, N(0.0)))};
}

template <class N>
HWY_INLINE N focused(const Focus& focus, const N& x) {
  const N from = x - focus.centre;
  return from / (focus.width + abs(from));
}

/// A place on the density table.
template <class N>
struct DensityPlace {
  const DensityTable& table;
  N row;
  N column;
  CubicWeights<N> byP;
  CubicWeights<N> byT;

  HWY_INLINE DensityPlace(const DensityTable& t, const N& logP, const N& T)
      : DensityPlace(t, (focused(t.firstFocus, logP) - t.first.low) * t.first.perUnit(),
                     (focused(t.secondFocus, T) - t.second.low) * t.second.perUnit(), onAxes()) {}

  /// ln P of the border between the layers.
  [[nodiscard]] HWY_INLINE N border() const {
    N node;
    return byT(table.border.data(), NumberOf<N>::nearest(column, node));
  }
  /// The value of a layer, 0.0 or 1.0.
  [[nodiscard]] HWY_INLINE N operator()(const N& layer) const {
    constexpr std::ptrdiff_t columns = DensityTable::columns;
    N node;
    const auto index = NumberOf<N>::nearest(
        layer * DensityTable::layer + row * DensityTable::columns + column, node);
    const double* const at = table.node.data();
    return byP.w0 * byT(at - columns, index) + byP.w1 * byT(at, index) +
           byP.w2 * byT(at + columns, index) + byP.w3 * byT(at + 2 * columns, index);
  }

 private:
  struct onAxes {};
  HWY_INLINE DensityPlace(const DensityTable& t, const N& x, const N& y, onAxes /*tag*/)
      : table(t),
        row(nodeBefore(x, DensityTable::rows)),
        column(nodeBefore(y, DensityTable::columns)),
        byP(x - row),
        byT(y - column) {}
};

/// Both values of a state table, by quadratic interpolation around the nearest node; `layer` is 0.0
/// or 1.0.
template <class N>
HWY_INLINE void readStates(const StateTable& table, const N& first, const N& second, const N& layer,
                           N& valueA, N& valueB) {
  using Number = NumberOf<N>;
  constexpr int columns = StateTable::columns;
  const N x = (first - table.first.low) * table.first.perUnit();
  const N y = (focused(table.focus, second) - table.second.low) * table.second.perUnit();
  N row;
  N column;
  N node;
  Number::nearest(min(max(x, N(1.0)), N(StateTable::rows - 2.0)), row);
  Number::nearest(min(max(y, N(1.0)), N(columns - 2.0)), column);
  const auto index = Number::nearest(layer * StateTable::layer + row * columns + column, node);
  // Outside of the table its edge serves.
  const N tx = min(max(x - row, N(-1.0)), N(1.0));
  const N ty = min(max(y - column, N(-1.0)), N(1.0));
  const N wx[3] = {0.5 * tx * (tx - 1.0), 1.0 - tx * tx, 0.5 * tx * (tx + 1.0)};
  const N wy[3] = {0.5 * ty * (ty - 1.0), 1.0 - ty * ty, 0.5 * ty * (ty + 1.0)};
  valueA = N(0.0);
  valueB = N(0.0);
  for (int i = 0; i < 3; ++i) {
    N sumA = N(0.0);
    N sumB = N(0.0);
    for (int j = 0; j < 3; ++j) {
      N a;
      N b;
      Number::gatherPair(table.node.data() + ((i - 1) * columns + (j - 1)), index, a, b);
      sumA += wy[j] * a;
      sumB += wy[j] * b;
    }
    valueA += wx[i] * sumA;
    valueB += wx[i] * sumB;
  }
}

/// The node of a state table next to a place.
template <class N>
HWY_INLINE void nearestState(const StateTable& table, const N& first, const N& second, N& valueA,
                             N& valueB) {
  using Number = NumberOf<N>;
  constexpr int columns = StateTable::columns;
  const N x = (first - table.first.low) * table.first.perUnit();
  const N y = (focused(table.focus, second) - table.second.low) * table.second.perUnit();
  N row;
  N column;
  N node;
  Number::nearest(min(max(x, N(0.0)), N(StateTable::rows - 1.0)), row);
  Number::nearest(min(max(y, N(0.0)), N(columns - 1.0)), column);
  Number::gatherPair(table.node.data(), Number::nearest(row * columns + column, node), valueA,
                     valueB);
}
