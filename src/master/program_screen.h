// The list of a master's programmes, its editor and the question before a delete: what the screens
// of the time and light programmes have in common. Each of them adds the moment of its programmes.
#pragma once

#include <string_view>
#include <vector>

#include "actions/action_picker.h"
#include "actions/action_sentence.h"
#include "link/link_events.h"
#include "master/program_table.h"
#include "platform/field.h"

namespace bkconf {

/// What the two screens differ in, beside the moment.
struct ProgramList {
  ProgramTable programs;
  std::string_view command;  ///< reads the table
  LinkEvent read;            ///< the table has come
  Cell& loaded;
  Cell& dirty;
  const SentenceVariant& sentences;
  TextId title;
};

/// What the list is drawn for. Some texts depend on it.
enum class Drawing { AfterRead, OnOpening, AfterChange };

class ProgramScreen : public Screen {
 public:
  ProgramScreen(std::string_view screenName, const ProgramList& list, const PickerVariant& variant);
  virtual ~ProgramScreen() = default;

  LabelField listLabel;
  LabelField memoryLabel;
  LabelField memory;  ///< how many slots are free
  GridField programs;
  GroupField descriptionGroup;
  LabelField description;  ///< the selected action in words

  GroupField deleteGroup;
  LabelField deleteQuestion;
  ButtonField deleteYes;
  ButtonField deleteNo;

  GroupField editGroup;
  ActionPicker picker;
  ButtonField editConfirm;
  ButtonField editLeave;

  ButtonField leave;

  /// Opens the screen on the programmes in memory. While there are none it asks the module for
  /// them, and the screen opens when they have come.
  void Enter();

 protected:
  /// Captions and handlers, once at start-up. The columns behind number and action are the
  /// screen's own.
  void LoadList(std::vector<GridField::Column> momentColumns);

  /// Of the moment's fields: none picked, and hidden until the target of the action is known.
  virtual void ClearMoment() = 0;
  virtual void ShowMoment(bool visible) = 0;
  virtual bool IsMomentComplete() const = 0;
  /// Puts the moment into the slot that begins at that cell.
  virtual void StoreMoment(int cell) = 0;
  /// Columns 2 and 3 of the row of the slot that begins at that cell.
  virtual void DrawMoment(int row, int cell, Drawing drawing) = 0;

  void PutColumn(int row, int column, std::string_view text) { programs.Put(row, column, text); }

 private:
  void Open(Drawing drawing);
  void Draw(Drawing drawing);
  void ShowDescription(int row);
  void ShowPanel(const GroupField* panel);
  void OpenEditor();
  void DoubleClick(int row);
  void Store();
  void Delete();
  void SignalListChange();

  const ProgramList& list_;
  int rowToDelete_ = 0;
};

}  // namespace bkconf
