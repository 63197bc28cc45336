#pragma once

#include <functional>
#include <string>

#include "shell/base/runtime_error.h"
#include "shell/forms/form.h"
#include "shell/suite.h"

namespace vantore {

/// A window of the suite. The one place where what a handler throws is caught: a run-time error is told to
/// the user with the literal of the control that was used, a question without an answer ends the handler
/// without a word.
class SuiteWindow : public Form {
  public:
    SuiteWindow(Suite& suite, std::string name) : Form(std::move(name), suite.scale()), suite_(suite) {}

  protected:
    void run(const Control& control, const std::function<void()>& handler) override;

    /// The title of a run-time error's box, and what follows the error's text in it.
    virtual std::string errorTitle() const = 0;
    virtual std::string errorPlace(const Control& control) const;

    /// A run-time error as its box tells it before the place: its text.
    virtual std::string errorWords(const RuntimeError& error, const Control& /*control*/) const {
        return error.what();
    }

    void message(const std::string& text, const std::string& title) { suite_.messageBx(text, title); }

    Suite& suite() const { return suite_; }

  private:
    void reportFailure(const std::string& text);

    Suite& suite_;
};

} // namespace vantore
