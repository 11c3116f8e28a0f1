// Writes the type library's IDL from the class's member table, so that the COM interfaces keep
// the member order, names, types and dispatch ids of class_members.h. Built for the build host.
#include <cstdio>
#include <string>

#include "api/class_members.h"

namespace {

// The COM type of each kind of value in the table.
const char* IdlType(const std::string& type) {
  if (type == "Integer" || type == "Flag") return "short";
  if (type == "Variant") return "VARIANT";
  if (type == "Long") return "long";
  return "BSTR";
}

std::string interface_body;
std::string events_body;

void Property(int dispid, const char* name, const std::string& type, const std::string& access) {
  const std::string id = std::to_string(dispid);
  const char* idl = IdlType(type);
  interface_body += "    [id(" + id + "), propput] HRESULT " + name + "([in] " + idl + " value);\n";
  if (access == "LetGet") {
    interface_body +=
        "    [id(" + id + "), propget] HRESULT " + name + "([out, retval] " + idl + "* value);\n";
  }
}

void Method(int dispid, const char* name, const std::string& result) {
  const std::string id = std::to_string(dispid);
  interface_body += "    [id(" + id + ")] HRESULT " + name + "(" +
                    (result == "Void" ? std::string() : "[out, retval] long* result") + ");\n";
}

void Event(int dispid, const char* name, const std::string& parameters) {
  // The one event parameter (Top) is passed by reference, as such hosts expect.
  std::string params = parameters == "()" ? "" : "[in, out] short* Top";
  events_body += "    [id(" + std::to_string(dispid) + ")] void " + name + "(" + params + ");\n";
}

}  // namespace

int main() {
#define NVRANDOM_IDL_PROPERTY(dispid, name, type, access, trace) \
  Property(dispid, #name, #type, #access);
#define NVRANDOM_IDL_METHOD(dispid, name, result) Method(dispid, #name, #result);
#define NVRANDOM_IDL_EVENT(dispid, name, parameters, arguments) Event(dispid, #name, #parameters);
  NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_IDL_PROPERTY, NVRANDOM_IDL_METHOD)
  NVRANDOM_CLSRANDOM_EVENTS(NVRANDOM_IDL_EVENT)
  std::printf(
      "// Generated from src/api/class_members.h by com/make_idl.cpp: do not edit.\n"
      "import \"oaidl.idl\";\n\n"
      "[uuid(6E0B7C3A-2F41-4B8E-9C55-1D2A7F3E9B01), version(1.0), helpstring(\"NVRandom\")]\n"
      "library NVRandom {\n"
      "  importlib(\"stdole2.tlb\");\n\n"
      "  [uuid(6E0B7C3A-2F41-4B8E-9C55-1D2A7F3E9B02), dual, nonextensible, oleautomation]\n"
      "  interface _ClsRandom : IDispatch {\n%s  };\n\n"
      "  [uuid(6E0B7C3A-2F41-4B8E-9C55-1D2A7F3E9B03)]\n"
      "  dispinterface __ClsRandom {\n  properties:\n  methods:\n%s  };\n\n"
      "  [uuid(6E0B7C3A-2F41-4B8E-9C55-1D2A7F3E9B04)]\n"
      "  coclass ClsRandom {\n"
      "    [default] interface _ClsRandom;\n"
      "    [default, source] dispinterface __ClsRandom;\n"
      "  };\n"
      "};\n",
      interface_body.c_str(), events_body.c_str());
  return 0;
}
