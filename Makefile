# The two entry points of the README. Both install what they need on a fresh Debian machine.
APT_PACKAGES := cmake ninja-build g++ clang libclang-rt-14-dev pkg-config libgtest-dev libgmock-dev \
                libbenchmark-dev libre2-dev nettle-dev nlohmann-json3-dev clang-format \
                g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix wine64 wine64-tools fonts-wine \
                imagemagick \
                xvfb googletest qt6-base-dev qt6-base-dev-tools qt6-svg-dev xauth x11-utils xdotool \
                openbox fonts-open-sans libfontconfig-dev time

NVRANDOM := build/default/tools/nvrandom/nvrandom
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)

.PHONY: demo test deps build format-check bench windows bench-windows

deps:
	@missing=$$(for p in $(APT_PACKAGES); do dpkg -s $$p >/dev/null 2>&1 || echo $$p; done); \
	if [ -n "$$missing" ]; then \
	  echo "installing:" $$missing; \
	  $(SUDO) apt-get update -qq && DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq $$missing; \
	fi

build: deps
	cmake --preset default
	cmake --build --preset default

# The biller dialog on a sample biller: a real window with a display; without one, a scripted
# session on the offscreen platform writes its screenshots and billers into build/demo.
demo: build
	$(NVRANDOM) demo --out build/demo

format-check: deps
	clang-format --dry-run --Werror $$(git ls-files '*.cpp' '*.h')

test: build format-check
	ctest --preset default
	cmake --preset asan
	cmake --build --preset asan
	ctest --preset asan
	$(MAKE) windows

# The Windows build (mingw-w64), its unit tests and every scenario run under Wine.
# The i686 DLL goes first: its tests only run where 32-bit Wine is installed, and the run should
# close on the suite that always runs.
windows: deps
	cmake --preset mingw32
	cmake --build --preset mingw32 --target nvrandom_com nvrandom_standins
	ctest --preset mingw32 -R windows32
	cmake --preset mingw64
	cmake --build --preset mingw64
	ctest --preset mingw64

# Timings of the Windows build under Wine (not part of make test), in a prefix of their own: a
# property read by name through IDispatch against the vtable, and CoCreateInstance up to the first
# property set, each against its target.
WINBENCH := build/mingw64-release
bench-windows: deps
	cmake --preset mingw64-release
	cmake --build --preset mingw64-release --target nvrandom_com nvrandom_com_bench
	tests/windows/com-setup.sh $(WINBENCH)/wine $(WINBENCH)/com/NVRandom.dll
	tests/windows/wine-run.sh $(WINBENCH)/wine $(WINBENCH)/bench/windows/nvrandom_com_bench.exe

bench: deps
	cmake --preset release
	cmake --build --preset release
	build/release/bench/nvrandom_bench
	build/release/bench/nvrandom_qt_bench
	bench/qt/peak_memory.sh build/release
