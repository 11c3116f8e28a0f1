# The two entry points of the README. Both install what they need on a fresh Debian machine.
APT_PACKAGES := cmake ninja-build g++ clang libclang-rt-14-dev pkg-config libgtest-dev libgmock-dev \
                libbenchmark-dev libre2-dev libssl-dev nlohmann-json3-dev clang-format \
                qt6-base-dev qt6-base-dev-tools qt6-svg-dev fonts-wine \
                xvfb xauth x11-utils xdotool openbox

NVRANDOM := build/default/tools/nvrandom/nvrandom
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)

.PHONY: demo test deps build format-check bench

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

bench: deps
	cmake --preset release
	cmake --build --preset release
	build/release/bench/nvrandom_bench
