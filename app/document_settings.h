// What the user chose last for documents that are saved or printed: kFlagsFile, section "Document".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/core/document_name.h"
#include "app/core/document_table.h"
#include "app/core/door_year.h"
#include "publishing/core/table_rtf.h"

// Every call of a getter reads afresh. What cannot be stored, or must not be since the file cannot be read, is not, and
// nothing is said of it: the file or the paper is what the user wants.
class DocumentSettings {
 public:
  DocumentSettings();

  // For saving and for printing apart.
  DocumentKind Kind(bool forPaper) const;
  void SetKind(bool forPaper, DocumentKind kind) const;

  // Nothing: the language of the readings.
  std::optional<uint32_t> Language() const;
  void SetLanguage(std::optional<uint32_t> language) const;

  std::vector<uint32_t> Zmanim(DocumentKind kind, const std::vector<DocumentZman>& zmanim) const;
  void SetZmanim(DocumentKind kind, const std::vector<DocumentZman>& zmanim, const std::vector<uint32_t>& chosen) const;

  bool Occasions() const;
  void SetOccasions(bool occasions) const;

  DocumentType Type() const;
  void SetType(DocumentType type) const;

  publishing::PaperSize Paper() const;
  void SetPaper(publishing::PaperSize paper) const;
  publishing::Orientation PaperOrientation() const;
  void SetPaperOrientation(publishing::Orientation orientation) const;

  bool IsoDates() const;
  void SetIsoDates(bool isoDates) const;
  int32_t ReminderMinutes() const;  // 0: none
  void SetReminderMinutes(int32_t minutes) const;

  DoorYear Year() const;
  void SetYear(DoorYear year) const;

  // Of the preview, in its own form.
  std::string PageSetup() const;
  void SetPageSetup(const std::string& setup) const;

 private:
  void Store(const char* key, const std::string& value) const;
  void StoreNumber(const char* key, int64_t value) const { Store(key, std::to_string(value)); }

  bool mayStore_;
};

// Reminders are at most two weeks.
inline constexpr int32_t kMostReminderMinutes = 20160;
