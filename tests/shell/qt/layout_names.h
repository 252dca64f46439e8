// What a layout names, in its order, for the tests that compare it with the fields of its screen.
#pragma once

#include <QStringList>

#include "shell/qt/field_view.h"
#include "shell/qt/layout.h"

namespace bkconf {

inline QStringList NamesIn(const Part& part) {
  QStringList names;
  const bool hasLabel =
      part.kind == PartKind::Line || part.kind == PartKind::Below || part.kind == PartKind::Inside;
  if (hasLabel) names.append(ToQt(part.label));
  // A cover names the field that lies over the others, which has its place within.
  if (!part.field.empty() && part.kind != PartKind::Cover) names.append(ToQt(part.field));
  for (const Part& each : part.parts) names.append(NamesIn(each));
  return names;
}

}  // namespace bkconf
