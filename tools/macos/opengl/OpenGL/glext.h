// SPDX-License-Identifier: MIT
// See gl.h.
#pragma once
