#include "end_to_end/grid.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace end_to_end {
namespace {

bool IsLeftOf(const Widget& one, const Widget& other) {
  return one.x < other.x;
}

bool Overlap(const Widget& one, const Widget& other) {
  return one.x < other.x + other.width && other.x < one.x + one.width &&
         one.y < other.y + other.height && other.y < one.y + one.height;
}

}  // namespace

std::optional<Widget> Grid::Find(std::string_view row, std::string_view column) const {
  const auto caption = std::find_if(captions.begin(), captions.end(),
                                    [=](const Widget& each) { return each.name == column; });
  const auto cells = std::find_if(rows.begin(), rows.end(),
                                  [=](const auto& each) { return each.front().name == row; });
  if (caption == captions.end() || cells == rows.end()) return std::nullopt;
  const int middle = caption->x + caption->width / 2;
  const auto cell = std::find_if(cells->begin(), cells->end(), [=](const Widget& each) {
    return each.x <= middle && middle < each.x + each.width;
  });
  if (cell == cells->end()) return std::nullopt;
  return *cell;
}

std::vector<std::string> Grid::Texts() const {
  std::vector<std::string> texts;
  for (const std::vector<Widget>& row : rows) {
    std::string text = row.front().name;
    for (auto cell = row.begin() + 1; cell != row.end(); ++cell) text += "|" + cell->name;
    texts.push_back(text);
  }
  return texts;
}

Grid GridOf(const std::vector<Widget>& widgets, int number) {
  Grid grid;
  std::vector<Widget> tables;
  std::copy_if(widgets.begin(), widgets.end(), std::back_inserter(tables),
               [](const Widget& each) { return each.role == "table"; });
  if (tables.size() < static_cast<std::size_t>(number)) return grid;
  const Widget& table = tables[static_cast<std::size_t>(number) - 1];
  std::vector<Widget> parts;
  std::copy_if(widgets.begin(), widgets.end(), std::back_inserter(parts),
               [&table](const Widget& each) { return Overlap(each, table); });
  std::map<int, std::vector<Widget>> rows;  // by the place of their upper edge
  for (const Widget& widget : parts) {
    if (widget.role == "cell") rows[widget.y].push_back(widget);
    if (widget.role == "column header") grid.captions.push_back(widget);
  }
  for (const Widget& widget : parts) {
    const auto row = rows.find(widget.y);
    if (widget.role == "row header" && row != rows.end()) row->second.push_back(widget);
  }
  std::sort(grid.captions.begin(), grid.captions.end(), IsLeftOf);
  for (auto& [top, cells] : rows) {
    std::sort(cells.begin(), cells.end(), IsLeftOf);
    grid.rows.push_back(cells);
  }
  return grid;
}

}  // namespace end_to_end
