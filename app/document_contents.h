// The part that the dialogs of saving and of printing have alike: which contents, which zmanim, in which language.
#pragma once

#include <windows.h>

#include <map>
#include <vector>

#include "app/core/document_table.h"
#include "app/document_settings.h"
#include "app/taken_document.h"

class DocumentContents {
 public:
  // What is shown at first is what the settings remember, for saving or for paper.
  DocumentContents(HWND dialog, const TakenDocument& document, const DocumentSettings& settings, bool forPaper);

  // Whether the control is one of this part's, and has been answered.
  bool OnCommand(int control, int notification);
  void OnNotify(const NMHDR& header);

  DocumentKind Kind() const { return kind_; }

  // As it stands in the dialog. Nothing is remembered before Store.
  DocumentChoice Choice() const;
  void Store() const;

  // Says what is missing, with the focus there; whether nothing is.
  bool Check() const;

 private:
  void FillLanguages();
  void ShowZmanim();
  void CheckAll(bool checked);
  void KeepZmanim();
  std::vector<uint32_t> CheckedZmanim() const;
  uint32_t Language() const;
  bool WantsOccasions() const;
  HWND Control(int id) const { return GetDlgItem(dialog_, id); }

  HWND dialog_;
  const TakenDocument& document_;
  const DocumentSettings& settings_;
  bool forPaper_;
  bool zmanimInHebrew_;
  DocumentKind kind_;
  std::map<DocumentKind, std::vector<uint32_t>> zmanim_;  // chosen for each kind that has been shown
  bool isFilling_ = false;
};
