// The page: brings the parts together.
import { Connection, ask, looksOnly } from "./connection.js";
import { Lcd } from "./lcd.js";
import { Front } from "./front.js";
import { Hands } from "./hands.js";
import { Pane } from "./pane.js";
import { AnimatedPicture } from "./recording.js";

const part = id => document.getElementById(id);
const helpLines = [
  ["wheel, arrow keys, swipe over the LCD, drag the rim of the knob", "turn the knob; a notch is a step"],
  ["Enter, Space, middle of the knob", "OK"],
  ["Esc, Backspace", "ESC"],
  ["1 to 8", "the upper row, MAIN to PRESET"],
  ["Q W E R T Y U I", "the lower row, HDMI 1 to IN 8, by their places on a US keyboard"],
  ["hold", "three seconds are a long press"],
  ["Shift and click, or Hold and click", "keeps a key down until it is clicked again: ESC, then OK, locks"],
  ["F2", "the LCD as PNG"],
  ["F3", "begins or ends to record: a session for fpdctl replay, and an animated picture"],
  ["?, F1", "this sheet"],
];

let layout = null, state = null, mayDrive = false, isLost = false;
let recorded = null, recordsSession = false;

const lcd = new Lcd(part("lcd"));
const front = new Front(lcd);
const hands = new Hands({
  hold: (key, down) => connection.send({ do: "hold", key, down }),
  turn: (steps, ms) => mayDrive && connection.send({ do: "turn", steps, ms }),
  command: name => commands[name](),
  changed: showKeys,
});
const connection = new Connection({
  layout: learn,
  open: welcome,
  state: next => { state = next; show(); },
  picture: message => lcd.show(message),
  lost: () => { isLost = true; hands.letGo(); show(); },
  refused: () => { front.front.hidden = false; front.fit(); showNotice("This panel wants a token:\nopen the link that the emulator has printed."); },
});
const pane = new Pane(connection, tell, () => front.fit());
const commands = { help: showHelp, picture: savePicture, record: toggleRecording };

function learn(next) {
  if (JSON.stringify(next) === JSON.stringify(layout)) return;
  layout = next;
  front.build(layout);
  hands.learn(layout);
}

function welcome(drives) {
  mayDrive = drives;
  isLost = false;
  document.body.classList.toggle("looks", !drives);
  part("open-pane").hidden = part("latch").hidden = !drives;
  part("power").disabled = !drives;
  pane.resume();
}

function showNotice(text, canStart = false) {
  document.body.classList.toggle("dead", text !== "");
  part("notice").hidden = text === "";
  part("reason").textContent = text;
  part("start").hidden = !canStart;
}

function show() {
  const running = !isLost && state?.running;
  document.body.classList.toggle("running", Boolean(running));
  if (isLost) showNotice("The emulator does not answer.\nIt is tried again and again.");
  else if (!running) showNotice(state.failure ? `The panel ${state.failure}.` : "The panel is off.", mayDrive);
  else showNotice("");
  document.title = "Front panel" + (layout ? ` - ${layout.folder}` : "") +
    (isLost ? " (away)" : running ? "" : ` (${state?.failure || "off"})`);
  front.showLeds(running ? state.leds : "");
  part("record").setAttribute("aria-pressed", Boolean(recorded));
  showKeys();
}

function showKeys() {
  for (const name of front.names())
    front.showKey(name, hands.holds(name) || Boolean(!isLost && state?.down[name]), hands.isLatched(name));
}

function tell(...parts) {
  part("told").replaceChildren(...parts);
}

function linkTo(blob, suffix) {
  const link = document.createElement("a");
  link.href = URL.createObjectURL(blob);
  link.download = `panel-${new Date().toISOString().slice(0, 19).replaceAll(":", "")}${suffix}`;
  link.textContent = link.download;
  return link;
}

async function savePicture() {
  const link = linkTo(await lcd.png(), ".png");
  link.click();
  tell("saved: ", link);
}

async function post(path) {
  const answer = await ask(path, "POST");
  if (!answer.ok) throw new Error((await answer.json()).error);
  return answer;
}

/** Who only looks records what is seen; the session is for who drives. */
async function toggleRecording() {
  try {
    if (!recorded) {
      recordsSession = mayDrive && !state.recording;
      if (recordsSession) await post("/api/recording/start");
      recorded = new AnimatedPicture(lcd);
      tell(recordsSession || !mayDrive ? "recording" : "recording the picture; the session is already recorded elsewhere");
    } else {
      const seen = recorded;
      recorded = null;
      const links = [linkTo(await seen.end(), ".png")];
      if (recordsSession) links.push(" ", linkTo(await (await post("/api/recording/stop")).blob(), ".txt"));
      tell("recorded: ", ...links);
    }
  } catch (fault) {
    tell(fault.message);
  }
  show();
}

function showHelp() {
  part("help").showModal();
}

function setPanel(word) {
  connection.word(["panel", word]).ended.catch(fault => tell(fault.message));
}

for (const [keys, effect] of helpLines) {
  const row = part("help").querySelector("table").insertRow();
  row.insertCell().textContent = keys;
  row.insertCell().textContent = effect;
}
part("help").addEventListener("click", () => part("help").close());
// In front of all others: the key that closes the sheet does nothing else.
addEventListener("keydown", event => {
  if (!part("help").open || event.repeat) return;
  part("help").close();
  event.preventDefault();
  event.stopImmediatePropagation();
}, { capture: true });

const buttons = {
  picture: savePicture,
  record: toggleRecording,
  "open-help": showHelp,
  "open-pane": () => pane.toggle(),
  start: () => setPanel("start"),
  power: () => setPanel(state.running ? "stop" : "start"),
  latch: () => {
    hands.latching = !hands.latching;
    part("latch").setAttribute("aria-pressed", hands.latching);
  },
};
for (const [id, act] of Object.entries(buttons)) {
  part(id).addEventListener("click", event => {
    if (event.detail) part(id).blur(); // Enter is OK again after a click with the mouse
    act();
  });
}
tell(looksOnly ? "you are looking only" : "? shows all keys");
connection.open();
