#pragma once

#include <memory>
#include <string>
#include <vector>

#include "companion/formats/source_and_sink.h"

namespace tessara {

/// One thing that a command writes.
class Output : public ByteSink {
 public:
  /// All that was written is safe, but nobody sees it.
  virtual void Complete() = 0;
  virtual void Appear() = 0;
};

/// Raises Refused where a file of the path is there, unless it is to be replaced. Standard output
/// never is.
void RequireFree(const std::string& path, bool replaces);

/// The files of a command, or standard output: all of them are complete before the first appears.
class Outputs {
 public:
  /// The output for what is written next; "-" is standard output. What fails raises Refused.
  ByteSink& Add(const std::string& path);
  void Appear();

 private:
  std::vector<std::unique_ptr<Output>> outputs_;
};

}  // namespace tessara
