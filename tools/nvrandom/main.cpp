#include <cstdio>

int main() {
  std::puts("nvrandom");
  return 0;
}
