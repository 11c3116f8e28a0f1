#pragma once

namespace nvrandom::forms {
class Application {};
}  // namespace nvrandom::forms
