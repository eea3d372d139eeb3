// Tests of windows in text files: what a user does, a line a step, and what must be so after it.
#pragma once

#include <QTreeWidget>
#include <string>

#include "tests/support/program_fixture.h"
#include "tests/support/steps.h"
#include "toolkit/controls/picture_box.h"

namespace trabeon::test {

class WalkTest : public ProgramTest, public Walker, public testing::WithParamInterface<Walk> {
  protected:
    WalkTest();
    std::string Look(const std::string& control) override;
    void AfterStep() override { Settle(); }

    QWidget& Front();
    /// The window of a form that is loaded; null of another.
    QWidget* Window(const std::string& form);
    QWidget& Find(const std::string& name);
    QTreeWidget& List();

  private:
    void AddActions();
    void AddExpectations();
    void AddStates();
    void AddListStates();
    QPoint PlaceOf(const Step& step);
    void Keys(const std::string& keys);
};

/// What a picture shows, a line a stroke, in whole twips.
std::string strokesOf(const PictureBox& picture);

}  // namespace trabeon::test
