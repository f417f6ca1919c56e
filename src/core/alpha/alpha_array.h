#pragma once
// Alpha values beside an icon: a square byte array indexed (x, y) like the pixels.
#include <cstdint>
#include <vector>

namespace vexlo::alpha {

// A square array of alpha bytes indexed (x, y) with bounds 0..n by 0..n, or a single element
// when there are no alpha values.
class AlphaArray {
public:
    bool IsSingle() const { return m_side == 0; }
    // The upper bound n of each dimension; 0 for the single element.
    int UpperBound() const { return m_side == 0 ? 0 : m_side - 1; }
    int Side() const { return m_side; }
    void SetSingle() {
        m_side = 0;
        m_values.assign(1, 0);
    }
    void SetBounds(int upperBound) {
        m_side = upperBound + 1;
        m_values.assign(static_cast<std::size_t>(m_side) * m_side, 0);
    }
    std::uint8_t& At(int x, int y) { return m_values[Index(x, y)]; }
    std::uint8_t At(int x, int y) const { return m_values[Index(x, y)]; }
    bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < m_side && y < m_side; }

private:
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(x) * (m_side == 0 ? 1 : m_side) + y;
    }
    int m_side = 0;
    std::vector<std::uint8_t> m_values = std::vector<std::uint8_t>(1, 0);
};

}  // namespace vexlo::alpha
