#include "libraries/persons/persons_editing.h"

#include <gtest/gtest.h>

#include <vector>

namespace persons {
namespace {

Person Named(const char* name) {
  return {Kind::kBirthday, {Calendar::kGregorian, {1, 2, 2000}, false}, std::nullopt, name, "", ""};
}

const Person kA = Named("A");
const Person kB = Named("B");
const Person kC = Named("C");

using Ids = std::vector<Editing::Id>;
using Changes = std::vector<Change>;

std::vector<Person> Now(const Editing& editing) {
  std::vector<Person> persons;
  for (const auto& [id, person] : editing.Now()) persons.push_back(person);
  return persons;
}

TEST(PersonsEditing, BeginsWithWhatIsStored) {
  const Editing editing({kA, kA, kB});
  EXPECT_EQ(Now(editing), (std::vector{kA, kA, kB}));
  EXPECT_TRUE(editing.IsSaved());
  EXPECT_FALSE(editing.CanUndo());
  EXPECT_EQ(editing.Unsaved(), Changes{});
}

TEST(PersonsEditing, KnowsWhatIsToBeWritten) {
  Editing editing({kA, kB});
  const Ids added = editing.Add({kC});
  ASSERT_EQ(added.size(), 1u);
  editing.Change(0, Named("A2"));
  editing.Remove({1});
  EXPECT_EQ(Now(editing), (std::vector{Named("A2"), kC}));
  EXPECT_FALSE(editing.IsSaved());
  EXPECT_EQ(editing.Unsaved(), (Changes{{kA, Named("A2")}, {kB, std::nullopt}, {std::nullopt, kC}}));
}

TEST(PersonsEditing, TakesStepsBackOneByOne) {
  Editing editing({kA, kB});
  const Ids added = editing.Add({kC, kC});
  editing.Change(0, kC);
  editing.Remove({0, 1});
  EXPECT_EQ(editing.Undo(), (Ids{0, 1}));
  EXPECT_EQ(Now(editing), (std::vector{kC, kB, kC, kC}));
  EXPECT_EQ(editing.Undo(), Ids{0});
  EXPECT_EQ(editing.Undo(), added);
  EXPECT_EQ(Now(editing), (std::vector{kA, kB}));
  EXPECT_TRUE(editing.IsSaved());
  EXPECT_FALSE(editing.CanUndo());
  EXPECT_EQ(editing.Undo(), Ids{});
}

TEST(PersonsEditing, WhatChangesNothingIsNoStep) {
  Editing editing({kA});
  editing.Change(0, kA);
  editing.Change(7, kB);
  editing.Remove({});
  editing.Remove({7});
  editing.Add({});
  EXPECT_FALSE(editing.CanUndo());
  EXPECT_TRUE(editing.IsSaved());
}

TEST(PersonsEditing, StepsCanBeTakenBackAfterSaving) {
  Editing editing({kA});
  editing.Change(0, kB);
  editing.WasSaved();
  EXPECT_TRUE(editing.IsSaved());
  editing.Undo();
  EXPECT_EQ(editing.Unsaved(), (Changes{{kB, kA}}));
}

TEST(PersonsEditing, IdsAreNeverUsedAgain) {
  Editing editing({kA});
  const Ids first = editing.Add({kB});
  editing.Undo();
  EXPECT_NE(editing.Add({kB}), first);
}

}  // namespace
}  // namespace persons
