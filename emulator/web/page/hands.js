// What the user's hands do: fingers, mouse, wheel and keyboard. A key is down while anything holds it.

const notch = 120; // of a wheel, as browsers that follow the mouse's own count tell it
const linesPerNotch = 3;
const degreesPerStep = 15, swipePerStep = 24; // CSS pixels
const slowMs = 1000;

export class Hands {
  #holders = new Map(); // by key: what holds it
  #places = new Map();
  #lastTurn = 0;
  #wheelRest = 0;
  #angle = 0;
  latching = false; // the next click latches without Shift, too

  /** on: hold(key, down), turn(steps, ms), command(name), changed() */
  constructor(on) {
    this.on = on;
    addEventListener("keydown", event => this.#keyDown(event));
    addEventListener("keyup", event => this.#letPlaceGo(event.code));
    addEventListener("blur", () => this.letGo());
    document.addEventListener("visibilitychange", () => this.letGo());
    const front = document.getElementById("front");
    front.addEventListener("wheel", event => this.#wheel(event), { passive: false });
    front.addEventListener("contextmenu", event => event.preventDefault());
    front.addEventListener("pointerdown", event => this.#push(event));
    this.#follow(document.getElementById("rim"), angleSteps());
    this.#follow(document.getElementById("lcd"), swipeSteps());
  }

  learn(layout) {
    this.#places = new Map(layout.fixed.map(key => [key.place, key]));
    for (const key of layout.keys)
      if (key.place) this.#places.set(key.place, key);
  }

  holds(key) {
    return this.#holders.has(key);
  }

  isLatched(key) {
    return this.#holders.get(key)?.has("latch") ?? false;
  }

  letGo() {
    for (const [key, holders] of [...this.#holders])
      for (const holder of [...holders]) this.#hold(key, holder, false);
  }

  turn(steps) {
    if (!steps) return;
    const now = performance.now();
    this.on.turn(steps, Math.min(slowMs, Math.round(now - this.#lastTurn)));
    this.#lastTurn = now;
    this.#angle += steps * degreesPerStep;
    document.getElementById("rim").style.transform = `rotate(${this.#angle}deg)`;
  }

  #hold(key, holder, down) {
    const holders = this.#holders.get(key) ?? new Set();
    const before = holders.size > 0;
    if (down) holders.add(holder);
    else holders.delete(holder);
    if (holders.size) this.#holders.set(key, holders);
    else this.#holders.delete(key);
    if (before !== holders.size > 0) this.on.hold(key, !before);
    this.on.changed();
  }

  #push(event) {
    const target = event.target.closest(".key, #cap");
    if (!target || event.button !== 0) return;
    event.preventDefault();
    const key = target.dataset.key ?? "ok";
    if (this.isLatched(key)) return this.#hold(key, "latch", false);
    if (event.shiftKey || this.latching) return this.#hold(key, "latch", true);
    target.setPointerCapture(event.pointerId);
    this.#hold(key, event.pointerId, true);
    for (const end of ["pointerup", "pointercancel", "lostpointercapture"])
      target.addEventListener(end, () => this.#hold(key, event.pointerId, false), { once: true });
  }

  /** A finger or the mouse that moves over it turns the knob. */
  #follow(element, stepsOf) {
    element.addEventListener("pointerdown", event => {
      if (event.button !== 0) return;
      event.preventDefault();
      element.setPointerCapture(event.pointerId);
      stepsOf(event, true);
    });
    element.addEventListener("pointermove", event => {
      if (element.hasPointerCapture(event.pointerId)) this.turn(stepsOf(event, false));
    });
  }

  #wheel(event) {
    event.preventDefault();
    const turned = event.wheelDeltaY !== undefined ? -event.wheelDeltaY
      : event.deltaMode === WheelEvent.DOM_DELTA_LINE ? event.deltaY * notch / linesPerNotch : event.deltaY;
    this.#wheelRest += turned;
    const steps = Math.trunc(this.#wheelRest / notch);
    this.#wheelRest -= steps * notch;
    this.turn(steps);
  }

  #keyDown(event) {
    if (event.ctrlKey || event.altKey || event.metaKey) return;
    const command = { F1: "help", "?": "help", F2: "picture", F3: "record" }[event.key];
    const place = this.#places.get(event.code);
    const onButton = event.target.closest?.("button, a") && ["Enter", "NumpadEnter", "Space"].includes(event.code);
    if (onButton || (!command && !place)) return;
    event.preventDefault();
    if (command && !event.repeat) this.on.command(command);
    else if (place?.steps) this.turn(place.steps);
    else if (place && !event.repeat) this.#hold(place.name, event.code, true);
  }

  #letPlaceGo(code) {
    for (const [key, holders] of [...this.#holders])
      if (holders.has(code)) this.#hold(key, code, false);
  }
}

/** Steps of a finger on the rim, by the angle that it goes around the middle. */
function angleSteps() {
  let last = 0, rest = 0;
  return ({ clientX, clientY }, begins) => {
    const box = document.getElementById("knob").getBoundingClientRect();
    const angle = Math.atan2(clientY - box.top - box.height / 2, clientX - box.left - box.width / 2) * 180 / Math.PI;
    rest = begins ? 0 : rest + ((angle - last + 540) % 360) - 180;
    last = angle;
    const steps = Math.trunc(rest / degreesPerStep);
    rest -= steps * degreesPerStep;
    return steps;
  };
}

/** Steps of a finger on the LCD: to the right and down is onwards. */
function swipeSteps() {
  let lastX = 0, lastY = 0, rest = 0;
  return ({ clientX, clientY }, begins) => {
    const right = clientX - lastX, down = clientY - lastY;
    rest = begins ? 0 : rest + (Math.abs(right) > Math.abs(down) ? right : down);
    [lastX, lastY] = [clientX, clientY];
    const steps = Math.trunc(rest / swipePerStep);
    rest -= steps * swipePerStep;
    return steps;
  };
}
