# SPDX-License-Identifier: GPL-3.0-or-later
# Run by CPack in a tree configured without CARDHAVEN_RELEASE: such a tree
# lacks the release flags and hardening, so it makes no package.
message(FATAL_ERROR "The package is made from a release tree: configure one with "
                    "-DCMAKE_BUILD_TYPE=RelWithDebInfo -DCARDHAVEN_RELEASE=ON and build its package target")
