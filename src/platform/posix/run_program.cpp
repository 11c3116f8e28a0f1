#include "platform/posix/run_program.h"

#include <spawn.h>
#include <sys/wait.h>

extern char** environ;

namespace nvrandom::posix {

bool RunProgram(const char* program, const std::string& argument) {
  pid_t pid = 0;
  std::string prog(program);
  std::string arg(argument);
  char* argv[] = {prog.data(), arg.data(), nullptr};
  if (::posix_spawnp(&pid, program, nullptr, nullptr, argv, environ) != 0) return false;
  int status = 0;
  if (::waitpid(pid, &status, 0) < 0) return false;
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace nvrandom::posix
