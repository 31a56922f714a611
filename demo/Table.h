#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace demo {

/// Rows of text in columns as wide as their widest cell. The first row is the heading.
class Table {
  public:
    using Row = std::vector<std::string>;

    explicit Table(Row heading) : rows_{std::move(heading)} {}

    /// Adds a row with as many cells as the heading.
    void add(Row row) { rows_.push_back(std::move(row)); }

    friend std::ostream& operator<<(std::ostream& stream, const Table& table);

  private:
    [[nodiscard]] std::vector<std::size_t> widths() const;

    std::vector<Row> rows_;
};

} // namespace demo
