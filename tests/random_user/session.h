#pragma once

#include <QObject>
#include <string>

#include "tests/random_user/random_user.h"
#include "tests/random_user/user_program.h"

namespace tessara::test {

/// A random user's time with one run of the program: from its start until it ends, or until enough
/// steps have been taken. Each time the program waits for its user, the user takes a step.
class Session {
 public:
  Session(Dice& dice, int steps, RandomUser::Tell tell);

  void Run();
  [[nodiscard]] int StepsLeft() const { return stepsLeft_; }
  /// What is wrong; empty where nothing is.
  [[nodiscard]] const std::string& Fault() const { return fault_; }

 private:
  void Start();
  void TakeStep();
  void Check();
  void Leave();
  [[nodiscard]] bool Ended() { return fixture_.program.Windows().ExitStatus().has_value(); }

  Dice& dice_;
  int stepsLeft_;
  RandomUser::Tell tell_;
  UserProgram fixture_;
  RandomUser user_;
  std::string fault_;
  bool leaving_ = false;
  /// Takes the steps; one that is still to come goes with it.
  QObject takesSteps_;
};

}  // namespace tessara::test
