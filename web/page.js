// Skarmada's page: draws the game's 80x25 screen on canvases, keeps the same
// screen as text for screen readers (and tests), and hands the game its keys.
//
// The game (skarmada.js and skarmada.wasm, built from the same sources as
// the terminal game) calls Module.skarmada: open, paint (the cells that
// changed), nextKey, flushKeys, wait, playing and close.
//
// On a touch screen a pad of keys stands beside the screen (landscape) or
// under it (portrait). Until the title is drawn a cover shows the game's
// name and how much of it has loaded, or what went wrong and what to do.
// Once the title is drawn, a service worker (sw.js) keeps the page's files
// for playing offline.
"use strict";

(function () {
  const COLUMNS = 80;
  const ROWS = 25;
  const CELLS = COLUMNS * ROWS;
  // Below this cell width (CSS pixels) the text is too small to read.
  const MIN_CELL_WIDTH = 6;
  // The pad's keys: their side in CSS pixels (a thumb needs 44), the space
  // between them and around the pad; a held arrow repeats as a keyboard's.
  const MIN_KEY = 44;
  const MAX_KEY = 64;
  const KEY_GAP = 8;
  const PAD_MARGIN = 12;
  const REPEAT_DELAY_MS = 500;
  const REPEAT_EVERY_MS = 50;
  const WASM = "skarmada.wasm";
  const SCRIPT = "skarmada.js";
  const SERVE_COMMAND = "python3 -m http.server -d build-web/web 8000";

  // The text console's 16 colours.
  const PALETTE = [
    "#000000", "#0000aa", "#00aa00", "#00aaaa", "#aa0000", "#aa00aa", "#aa5500", "#aaaaaa",
    "#555555", "#5555ff", "#55ff55", "#55ffff", "#ff5555", "#ff55ff", "#ffff55", "#ffffff",
  ];

  // Box lines by code page 437 code (179 to 218): the weight of the arm going
  // up, right, down and left (0 none, 1 single, 2 double).
  const BOX = {
    179: [1, 0, 1, 0], 180: [1, 0, 1, 1], 181: [1, 0, 1, 2], 182: [2, 0, 2, 1],
    183: [0, 0, 2, 1], 184: [0, 0, 1, 2], 185: [2, 0, 2, 2], 186: [2, 0, 2, 0],
    187: [0, 0, 2, 2], 188: [2, 0, 0, 2], 189: [2, 0, 0, 1], 190: [1, 0, 0, 2],
    191: [0, 0, 1, 1], 192: [1, 1, 0, 0], 193: [1, 1, 0, 1], 194: [0, 1, 1, 1],
    195: [1, 1, 1, 0], 196: [0, 1, 0, 1], 197: [1, 1, 1, 1], 198: [1, 2, 1, 0],
    199: [2, 1, 2, 0], 200: [2, 2, 0, 0], 201: [0, 2, 2, 0], 202: [2, 2, 0, 2],
    203: [0, 2, 2, 2], 204: [2, 2, 2, 0], 205: [0, 2, 0, 2], 206: [2, 2, 2, 2],
    207: [1, 2, 0, 2], 208: [2, 1, 0, 1], 209: [0, 2, 1, 2], 210: [0, 1, 2, 1],
    211: [2, 1, 0, 0], 212: [1, 2, 0, 0], 213: [0, 2, 1, 0], 214: [0, 1, 2, 0],
    215: [2, 1, 2, 1], 216: [1, 2, 1, 2], 217: [1, 0, 0, 1], 218: [0, 1, 1, 0],
  };
  // Shades: the dots of the foreground, in a tile of 4 by 2 dots laid over
  // the whole screen, so that shaded cells side by side make one surface.
  const SHADE = {
    176: ["1000", "0010"],
    177: ["1010", "0101"],
    178: ["0111", "1101"],
  };
  const shadePatterns = new Map();

  // Keys the game takes, by KeyboardEvent.key: [virtual key, character].
  const NAMED_KEYS = {
    ArrowLeft: [37, 0], ArrowUp: [38, 0], ArrowRight: [39, 0], ArrowDown: [40, 0],
    PageUp: [33, 0], PageDown: [34, 0], Home: [36, 0], End: [35, 0],
    Insert: [45, 0], Delete: [46, 0],
    Enter: [13, 13], Escape: [27, 27], Backspace: [8, 8], Tab: [9, 9], " ": [32, 32],
    y: [89, 121], n: [78, 110],
  };

  const screenElement = document.getElementById("console");
  // One canvas a row: a change hands the browser only the rows it touched.
  const glyphs = document.getElementById("glyphs");
  const canvases = [];
  const contexts = [];
  for (let row = 0; row < ROWS; ++row) {
    const canvas = document.createElement("canvas");
    glyphs.appendChild(canvas);
    canvases.push(canvas);
    contexts.push(canvas.getContext("2d", { alpha: false, desynchronized: true }));
  }
  let context = contexts[0];
  const textLayer = document.getElementById("text");
  const tooSmall = document.getElementById("too-small");
  const ended = document.getElementById("ended");
  const pad = document.getElementById("pad");
  const arrowKeys = pad.querySelector(".arrows");
  const actionKeys = pad.querySelector(".actions");
  const loading = document.getElementById("loading");
  const progress = document.getElementById("progress");
  const failed = document.getElementById("failed");

  const codes = new Uint8Array(CELLS).fill(32);
  const colours = new Uint8Array(CELLS).fill(15);
  const HEX = "0123456789abcdef";
  // The character shown for each code, ASCII until the game gives its table.
  let characters = Array.from({ length: 256 }, (_, code) =>
    code >= 32 && code < 127 ? String.fromCharCode(code) : " ");
  const rowElements = [];
  const keys = [];
  let wakeOnKey = null;
  let running = false;
  let playing = false;
  let padShown = navigator.maxTouchPoints > 0 || window.matchMedia("(any-pointer: coarse)").matches;

  // Cell size in device pixels; whole numbers, so that cells join exactly.
  let cellWidth = 8;
  let cellHeight = 16;

  // Figures for the benchmark: when the first screen was drawn, how long
  // each key took to reach a frame, and how often the game woke.
  const stats = { firstPaint: -1, keyToFrame: [], paints: 0, wakes: 0 };
  let keyTime = -1;
  window.skarmadaStats = stats;

  // The screen as text: one element a row, its text the row's 80
  // characters; data-fg and data-bg hold each cell's foreground and
  // background as one hex digit a cell.
  function buildTextLayer() {
    for (let row = 0; row < ROWS; ++row) {
      const line = document.createElement("div");
      line.dataset.row = String(row);
      line.appendChild(document.createTextNode(" ".repeat(COLUMNS)));
      rowElements.push(line);
      textLayer.appendChild(line);
    }
    for (let row = 0; row < ROWS; ++row) writeRow(row);
  }

  function writeRow(row) {
    let text = "";
    let fg = "";
    let bg = "";
    for (let index = row * COLUMNS; index < (row + 1) * COLUMNS; ++index) {
      text += characters[codes[index]];
      fg += HEX[colours[index] & 15];
      bg += HEX[colours[index] >> 4];
    }
    const line = rowElements[row];
    line.firstChild.data = text;
    line.dataset.fg = fg;
    line.dataset.bg = bg;
  }

  // Where the screen and the pad go: the screen as large as the window
  // leaves it in whole device pixels per cell, keeping 80x25 cells of 1 by
  // 2. With the pad, the two arrangements are tried (the pad's two blocks
  // one above the other beside the screen, or side by side under it) and
  // the one with the larger screen is taken; then the keys grow into the
  // room the screen leaves, up to MAX_KEY. The result depends on the
  // window's size alone, so turning a phone and back gives the same page.
  function cellFor(width, height, ratio) {
    return Math.max(1, Math.floor(Math.min((width * ratio) / COLUMNS, (height * ratio) / (ROWS * 2))));
  }

  function blockSide(key) {
    return 3 * key + 2 * KEY_GAP;
  }

  function keyFor(side) {
    return Math.floor((side - 2 * KEY_GAP) / 3);
  }

  function plan(width, height, ratio) {
    if (!padShown) return { cell: cellFor(width, height, ratio), area: [0, 0, width, height] };
    const block = blockSide(MIN_KEY) + 2 * PAD_MARGIN;
    const beside = cellFor(width - block, height, ratio);
    const under = cellFor(width, height - block, ratio);
    if (beside >= under) {
      const screenWidth = (beside * COLUMNS) / ratio;
      const key = Math.max(MIN_KEY, Math.min(MAX_KEY,
        keyFor(width - screenWidth - 2 * PAD_MARGIN),
        keyFor((height - 2 * PAD_MARGIN - KEY_GAP * 2) / 2)));
      const side = blockSide(key);
      const left = width - PAD_MARGIN - side;
      const top = Math.floor((height - 2 * side - 2 * KEY_GAP) / 2);
      return {
        cell: beside, area: [0, 0, left - PAD_MARGIN, height], key,
        arrows: [left, top], actions: [left, top + side + 2 * KEY_GAP],
      };
    }
    const screenHeight = (under * ROWS * 2) / ratio;
    const key = Math.max(MIN_KEY, Math.min(MAX_KEY,
      keyFor(height - screenHeight - 2 * PAD_MARGIN),
      keyFor((width - 2 * PAD_MARGIN - KEY_GAP * 2) / 2)));
    const side = blockSide(key);
    const top = height - PAD_MARGIN - side;
    return {
      cell: under, area: [0, 0, width, top - PAD_MARGIN], key,
      arrows: [PAD_MARGIN, top], actions: [width - PAD_MARGIN - side, top],
    };
  }

  // A CSS length on the device's pixel grid, so that cells join exactly.
  function snap(length, ratio) {
    return Math.floor(length * ratio) / ratio;
  }

  function layout() {
    const ratio = window.devicePixelRatio || 1;
    const width = document.documentElement.clientWidth;
    const height = document.documentElement.clientHeight;
    const placed = plan(width, height, ratio);
    cellWidth = placed.cell;
    cellHeight = cellWidth * 2;
    const cssWidth = (cellWidth * COLUMNS) / ratio;
    const cssHeight = (cellHeight * ROWS) / ratio;
    glyphs.style.width = cssWidth + "px";
    glyphs.style.height = cssHeight + "px";
    const font = Math.floor(Math.min(cellHeight * 0.8, cellWidth * 1.6)) +
      'px "DejaVu Sans Mono", "Liberation Mono", monospace';
    canvases.forEach((canvas, row) => {
      canvas.width = cellWidth * COLUMNS;
      canvas.height = cellHeight;
      canvas.style.width = cssWidth + "px";
      canvas.style.height = cellHeight / ratio + "px";
      canvas.style.top = (row * cellHeight) / ratio + "px";
      const rowContext = contexts[row];
      rowContext.textAlign = "center";
      rowContext.textBaseline = "middle";
      rowContext.font = font;
    });
    const [areaLeft, areaTop, areaWidth, areaHeight] = placed.area;
    screenElement.style.left = snap(areaLeft + Math.max(0, (areaWidth - cssWidth) / 2), ratio) + "px";
    screenElement.style.top = snap(areaTop + Math.max(0, (areaHeight - cssHeight) / 2), ratio) + "px";
    pad.hidden = !padShown;
    if (padShown) {
      pad.style.setProperty("--key", placed.key + "px");
      pad.style.setProperty("--gap", KEY_GAP + "px");
      arrowKeys.style.left = placed.arrows[0] + "px";
      arrowKeys.style.top = placed.arrows[1] + "px";
      actionKeys.style.left = placed.actions[0] + "px";
      actionKeys.style.top = placed.actions[1] + "px";
    }
    // A phone cannot be made larger: it is told nothing.
    tooSmall.hidden = padShown || cssWidth / COLUMNS >= MIN_CELL_WIDTH;
    for (let index = 0; index < CELLS; ++index) drawCell(index);
  }

  function fill(colour, x, y, width, height) {
    context.fillStyle = PALETTE[colour];
    context.fillRect(x, y, width, height);
  }

  // Box lines drawn as bars from the middle of the cell to its edges, so
  // that they meet the next cell's lines without a gap at any size.
  function drawBox(arms, x, y, fg) {
    const w = cellWidth;
    const h = cellHeight;
    const t = Math.max(1, Math.round(w / 8));
    const d = Math.max(t + 1, Math.round(w / 5));
    const cx = x + Math.floor((w - t) / 2);
    const cy = y + Math.floor((h - t) / 2);
    const [up, right, down, left] = arms;
    const vertical = [up, down];
    const horizontal = [left, right];
    // Where an arm starts, measured from the middle towards the right or
    // the bottom; an arm going up or left is drawn as its mirror image. A
    // single arm crossing double lines stops at the nearer line if they go
    // both ways, else it runs over both.
    function singleStart(across, opposite, centre) {
      if (opposite || (across[0] !== 2 && across[1] !== 2)) return centre;
      return across[0] === 2 && across[1] === 2 ? centre + d : centre - d;
    }
    // For one of the two lines of a double arm, on the near (0) or far (1)
    // side: an inner corner, an outer corner or straight through.
    function doubleStart(across, side, centre) {
      if (across[side] === 2) return centre + d;
      if (across[1 - side] === 2) return centre - d;
      return centre;
    }
    function bar(along, from, to, across) {
      if (along === "v") context.fillRect(across, from, t, to - from);
      else context.fillRect(from, across, to - from, t);
    }
    context.fillStyle = PALETTE[fg];
    const plan = [
      ["v", up, down, false, horizontal, cy, cx, y, y + h],
      ["v", down, up, true, horizontal, cy, cx, y, y + h],
      ["h", left, right, false, vertical, cx, cy, x, x + w],
      ["h", right, left, true, vertical, cx, cy, x, x + w],
    ];
    for (const [along, weight, opposite, forward, across, centre, line, low, high] of plan) {
      if (!weight) continue;
      const lines = weight === 1 ? [[line, singleStart(across, opposite, centre)]]
        : [[line - d, doubleStart(across, 0, centre)], [line + d, doubleStart(across, 1, centre)]];
      for (const [at, start] of lines) {
        if (forward) bar(along, start, high, at);
        else bar(along, low, 2 * centre - start + t, at);
      }
    }
  }

  function shadePattern(code, colour) {
    const dot = Math.max(1, Math.round(cellWidth / 8));
    const key = code * 256 + colour + dot * 65536;
    let pattern = shadePatterns.get(key);
    if (pattern === undefined) {
      const tile = document.createElement("canvas");
      tile.width = 4 * dot;
      tile.height = 2 * dot;
      const tileContext = tile.getContext("2d");
      tileContext.fillStyle = PALETTE[colour >> 4];
      tileContext.fillRect(0, 0, tile.width, tile.height);
      tileContext.fillStyle = PALETTE[colour & 15];
      SHADE[code].forEach((line, j) => {
        for (let i = 0; i < 4; ++i) {
          if (line[i] === "1") tileContext.fillRect(i * dot, j * dot, dot, dot);
        }
      });
      pattern = context.createPattern(tile, "repeat");
      shadePatterns.set(key, pattern);
    }
    return pattern;
  }

  function drawCell(index) {
    const code = codes[index];
    const colour = colours[index];
    const fg = colour & 15;
    const bg = colour >> 4;
    const w = cellWidth;
    const h = cellHeight;
    const x = (index % COLUMNS) * w;
    const y = 0;
    context = contexts[Math.floor(index / COLUMNS)];
    fill(bg, x, y, w, h);
    const halfW = Math.floor(w / 2);
    const halfH = Math.floor(h / 2);
    switch (code) {
      case 0: case 32: case 255: return;
      case 219: fill(fg, x, y, w, h); return;
      case 220: fill(fg, x, y + halfH, w, h - halfH); return;
      case 223: fill(fg, x, y, w, halfH); return;
      case 221: fill(fg, x, y, halfW, h); return;
      case 222: fill(fg, x + halfW, y, w - halfW, h); return;
      case 254: {
        const side = Math.round(w * 0.6);
        fill(fg, x + Math.floor((w - side) / 2), y + Math.floor((h - side) / 2), side, side);
        return;
      }
      case 22: {
        const bar = Math.round(h * 0.2);
        fill(fg, x, y + h - bar - Math.round(h * 0.2), w, bar);
        return;
      }
      default: break;
    }
    if (SHADE[code] !== undefined) {
      context.fillStyle = shadePattern(code, colour);
      context.fillRect(x, y, w, h);
      return;
    }
    if (BOX[code] !== undefined) {
      drawBox(BOX[code], x, y, fg);
      return;
    }
    context.fillStyle = PALETTE[fg];
    context.fillText(characters[code], x + w / 2,
      y + h / 2 + 1, w);
  }

  function markFrame() {
    if (keyTime < 0) return;
    const from = keyTime;
    keyTime = -1;
    requestAnimationFrame(() => stats.keyToFrame.push(performance.now() - from));
  }

  // A key for the game: virtual key and character, and when it was pressed.
  function pushKey(key, time) {
    keys.push(key[0] * 256 + key[1]);
    keyTime = time;
    if (wakeOnKey) wakeOnKey();
  }

  // Keys: the game sees key-downs of the keys it knows; the browser keeps
  // its own shortcuts (anything with Ctrl, Alt or Meta, the function keys).
  function onKey(event) {
    if (!running || event.ctrlKey || event.altKey || event.metaKey) return;
    let key = NAMED_KEYS[event.key];
    if (key === undefined) {
      if (event.key.length !== 1) return;
      const character = event.key.charCodeAt(0);
      if (character < 33 || character > 126) return;
      let virtualKey = event.keyCode;
      if (character >= 97 && character <= 122) virtualKey = character - 32;
      else if ((character >= 65 && character <= 90) || (character >= 48 && character <= 57)) {
        virtualKey = character;
      }
      key = [virtualKey, character];
    }
    event.preventDefault();
    pushKey(key, event.timeStamp);
  }

  // The pad: a key goes to the game as it is pressed; a held arrow repeats.
  // The page keeps the focus, so that a keyboard still works beside it. A
  // touch makes no click (the browser's tap handling would cost the frame
  // that shows the game's answer); a screen reader's click, which comes
  // with no pointer, presses the key once.
  function setUpPad() {
    pad.addEventListener("touchstart", (event) => event.preventDefault(), { passive: false });
    let repeat = 0;
    let held = null;
    function release() {
      clearTimeout(repeat);
      clearInterval(repeat);
      repeat = 0;
      if (held) held.classList.remove("down-now");
      held = null;
    }
    pad.querySelectorAll("button").forEach((button) => {
      const key = NAMED_KEYS[button.dataset.key];
      const arrow = button.dataset.key.startsWith("Arrow");
      button.addEventListener("pointerdown", (event) => {
        event.preventDefault();
        release();
        if (!running) return;
        held = button;
        pushKey(key, event.timeStamp);
        // The key sinks in the frame after the game's answer, not before it.
        requestAnimationFrame(() => setTimeout(() => {
          if (held === button) button.classList.add("down-now");
        }, 0));
        if (arrow) {
          repeat = setTimeout(() => {
            repeat = setInterval(() => pushKey(key, performance.now()), REPEAT_EVERY_MS);
          }, REPEAT_DELAY_MS);
        }
      });
      for (const name of ["pointerup", "pointercancel", "lostpointercapture"]) {
        button.addEventListener(name, release);
      }
      button.addEventListener("contextmenu", (event) => event.preventDefault());
      button.addEventListener("click", (event) => {
        if (running && event.detail === 0) pushKey(key, performance.now());
      });
    });
  }

  // Anything touched shows the pad, whatever the device said of itself.
  function onTouch(event) {
    if (padShown || event.pointerType !== "touch") return;
    padShown = true;
    layout();
  }

  function showEnded(text) {
    running = false;
    playing = false;
    document.body.classList.add("ended");
    keys.length = 0;
    document.getElementById("ended-what").textContent = text;
    ended.hidden = false;
    document.getElementById("again").focus();
  }

  // Loading and failing.
  function showProgress(text) {
    progress.textContent = text;
  }

  // `todo` is a list of strings and {code: ...} for a command to type.
  function fail(what, todo, retry) {
    running = false;
    document.getElementById("failed-what").textContent = what;
    const todoElement = document.getElementById("failed-todo");
    todoElement.textContent = "";
    for (const part of todo) {
      if (typeof part === "string") {
        todoElement.appendChild(document.createTextNode(part));
      } else {
        const code = document.createElement("code");
        code.textContent = part.code;
        todoElement.appendChild(code);
      }
    }
    document.getElementById("retry").hidden = !retry;
    loading.hidden = true;
    failed.hidden = false;
    if (retry) document.getElementById("retry").focus();
  }

  const REBUILD = "Check that the page's folder holds every file of the build " +
    "(build the page again if not), then try again.";
  const RECONNECT = "Check the connection and that the server is running, then try again.";

  // A failure to show: what happened, and what to do about it.
  function failure(what, todo) {
    const error = new Error(what);
    error.todo = todo;
    return error;
  }

  // The game's code, fetched with its progress shown; any failure says which
  // file and what to do.
  function fetchWasm() {
    return fetch(WASM, { credentials: "same-origin" }).catch(() => {
      throw failure(`The game's file ${WASM} could not be fetched: the server did not answer.`,
        RECONNECT);
    }).then((response) => {
      if (!response.ok) {
        throw failure(`The game's file ${WASM} could not be fetched: the server answered ` +
          `${response.status} ${response.statusText}.`.replace(" .", "."), REBUILD);
      }
      const total = Number(response.headers.get("Content-Length")) || 0;
      if (!response.body) return response.arrayBuffer();
      const reader = response.body.getReader();
      const parts = [];
      let received = 0;
      function next() {
        return reader.read().then(({ done, value }) => {
          if (done) return;
          parts.push(value);
          received += value.length;
          showProgress(total > 0
            ? `Loading ${Math.min(100, Math.floor((received * 100) / total))}%`
            : `Loading ${Math.floor(received / 1024)} KiB`);
          return next();
        });
      }
      return next().then(() => {
        const bytes = new Uint8Array(received);
        let at = 0;
        for (const part of parts) {
          bytes.set(part, at);
          at += part.length;
        }
        return bytes;
      }, () => {
        throw failure(`The game's file ${WASM} stopped coming halfway: the server stopped ` +
          "answering.", RECONNECT);
      });
    });
  }

  function instantiate(imports, receiveInstance, wasm) {
    wasm.then((bytes) => WebAssembly.instantiate(bytes, imports).catch((error) => {
      throw failure(`The game's file ${WASM} is damaged (${error.message}).`, REBUILD);
    })).then((result) => {
      showProgress("Starting…");
      receiveInstance(result.instance, result.module);
    }).catch((error) => fail(error.message, [error.todo || REBUILD], true));
    return {};
  }

  function start() {
    if (location.protocol === "file:") {
      fail("This page was opened as a file, and a browser runs the game only from a server.",
        ["Serve the page's folder and open it from there: in the game's folder run",
          { code: SERVE_COMMAND }, "then open", { code: "http://127.0.0.1:8000/" }], false);
      return;
    }
    if (typeof WebAssembly !== "object" || typeof WebAssembly.instantiate !== "function") {
      fail("This browser cannot run WebAssembly, which the game is made of.",
        ["Open the page in a current browser, with WebAssembly turned on."], false);
      return;
    }
    const wasm = fetchWasm();
    window.Module = {
      skarmada: page,
      print: (text) => console.log(text),
      printErr: (text) => console.warn(text),
      instantiateWasm: (imports, receiveInstance) => instantiate(imports, receiveInstance, wasm),
      onAbort: (what) => {
        if (stats.firstPaint < 0) fail(`The game stopped while starting (${what}).`, [REBUILD], true);
        else showEnded("The game stopped on an error.");
      },
    };
    const script = document.createElement("script");
    script.src = SCRIPT;
    script.onerror = () => fail(`The game's file ${SCRIPT} could not be fetched.`, [REBUILD], true);
    document.body.appendChild(script);
  }

  // Offline: once the title is drawn, the service worker keeps the page's
  // files. A browser allows one on https or on this machine's own address.
  function keepForOffline() {
    if (!("serviceWorker" in navigator) || !window.isSecureContext) return;
    navigator.serviceWorker.register("sw.js").catch((error) =>
      console.warn(`The page cannot be kept for offline play: ${error.message}`));
  }

  const page = {
    open(table) {
      characters = Array.from(table, (point) => String.fromCodePoint(point));
      running = true;
      screenElement.focus();
    },
    close() {
      showEnded("The game has ended.");
    },
    paint(changes) {
      const rows = new Uint8Array(ROWS);
      for (let i = 0; i < changes.length; ++i) {
        const word = changes[i];
        const index = word >>> 16;
        codes[index] = word & 255;
        colours[index] = (word >>> 8) & 255;
        drawCell(index);
        rows[Math.floor(index / COLUMNS)] = 1;
      }
      for (let row = 0; row < ROWS; ++row) {
        if (rows[row]) writeRow(row);
      }
      stats.paints += 1;
      if (stats.firstPaint < 0) {
        stats.firstPaint = performance.now();
        loading.hidden = true;
        keepForOffline();
      }
      markFrame();
    },
    nextKey(take) {
      if (keys.length === 0) return -1;
      return take ? keys.shift() : keys[0];
    },
    flushKeys() {
      keys.length = 0;
    },
    // A game is on: leaving the tab asks first.
    playing(on) {
      playing = on;
    },
    wait(milliseconds, wakeOnKeyWanted, wakeUp) {
      let done = false;
      let timer = 0;
      const finish = () => {
        if (done) return;
        done = true;
        if (timer) clearTimeout(timer);
        wakeOnKey = null;
        stats.wakes += 1;
        wakeUp();
      };
      if (milliseconds >= 0) timer = setTimeout(finish, milliseconds);
      if (wakeOnKeyWanted) wakeOnKey = finish;
    },
  };

  buildTextLayer();
  layout();
  setUpPad();
  window.addEventListener("resize", layout);
  window.addEventListener("keydown", onKey);
  window.addEventListener("pointerdown", onTouch, true);
  window.addEventListener("beforeunload", (event) => {
    if (!playing) return;
    event.preventDefault();
    event.returnValue = "";
  });
  screenElement.addEventListener("mousedown", () => screenElement.focus());
  document.getElementById("again").addEventListener("click", () => location.reload());
  document.getElementById("retry").addEventListener("click", () => location.reload());
  start();
})();
