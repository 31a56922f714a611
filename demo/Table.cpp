#include "demo/Table.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

namespace demo {

std::vector<std::size_t> Table::widths() const {
    std::vector<std::size_t> widths(rows_.front().size());
    for (const Row& row : rows_) {
        for (std::size_t column = 0; column < widths.size(); ++column) {
            widths[column] = std::max(widths[column], row[column].size());
        }
    }
    return widths;
}

std::ostream& operator<<(std::ostream& stream, const Table& table) {
    const auto widths = table.widths();
    for (const Table::Row& row : table.rows_) {
        for (std::size_t column = 0; column + 1 < widths.size(); ++column) {
            stream << "  " << std::left << std::setw(static_cast<int>(widths[column]))
                   << row[column];
        }
        stream << "  " << row.back() << '\n';
    }
    return stream;
}

} // namespace demo
