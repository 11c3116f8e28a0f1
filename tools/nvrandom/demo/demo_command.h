#pragma once

#include <ostream>

namespace nvrandom::demo {

// `nvrandom demo [--sample business|individual|us|international] [--offscreen] [--out DIR]`:
// the biller dialog on a sample biller. With a display it opens in a real window and, once
// closed, the biller is printed as JSON. With no display (or --offscreen) a scripted session
// walks it on the offscreen platform (every sample unless one is named), writing a PNG of each
// step and the resulting JSON into DIR (default "nvrandom-demo").
int DemoCommand(int argc, char** argv, std::ostream& out, std::ostream& err);

}  // namespace nvrandom::demo
