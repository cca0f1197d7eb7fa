// symbols.mjs TABLE NODES OUT: writes the drawings of the product's symbol names as path data.
//
// TABLE maps a name to the icon set's name or to a drawing of our own; NODES is the icon set's drawings. A line of OUT is
// a name and its parts, parted by tabs; a part is S (stroked) or F (filled) and a path of absolute moves, lines, cubic
// curves and closes on a square of 24. Names are in byte order, so that they can be searched.
import { readFileSync, writeFileSync } from "node:fs";

const [table, nodes, out] = process.argv.slice(2);

/** Pieces of a path as it is collected: absolute commands only. */
class Path {
    #text = [];
    move(x, y) { this.#add("M", x, y); }
    line(x, y) { this.#add("L", x, y); }
    curve(...points) { this.#add("C", ...points); }
    close() { this.#text.push("Z"); }
    #add(command, ...numbers) { this.#text.push(command + numbers.map(rounded).join(" ")); }
    toString() { return this.#text.join(""); }
}

function rounded(number) {
    if (!Number.isFinite(number))
        throw new Error("a coordinate that is no number");
    return String(Math.round(number * 1000) / 1000 + 0);
}

/** An elliptical arc as cubic curves, each at most a quarter turn. */
function arc(path, x0, y0, rx, ry, rotation, large, sweep, x1, y1) {
    if (rx === 0 || ry === 0 || (x0 === x1 && y0 === y1))
        return path.line(x1, y1);
    const phi = rotation * Math.PI / 180, cos = Math.cos(phi), sin = Math.sin(phi);
    const dx = (x0 - x1) / 2, dy = (y0 - y1) / 2;
    const px = cos * dx + sin * dy, py = -sin * dx + cos * dy;
    const grow = Math.sqrt(Math.max(1, px * px / (rx * rx) + py * py / (ry * ry)));
    rx = Math.abs(rx) * grow;
    ry = Math.abs(ry) * grow;
    const over = rx * rx * py * py + ry * ry * px * px;
    const root = Math.sqrt(Math.max(0, (rx * rx * ry * ry - over) / over)) * (large === sweep ? -1 : 1);
    const ux = root * rx * py / ry, uy = -root * ry * px / rx;
    const cx = cos * ux - sin * uy + (x0 + x1) / 2, cy = sin * ux + cos * uy + (y0 + y1) / 2;
    const from = Math.atan2((py - uy) / ry, (px - ux) / rx);
    let turn = Math.atan2((-py - uy) / ry, (-px - ux) / rx) - from;
    if (sweep && turn < 0) turn += 2 * Math.PI;
    if (!sweep && turn > 0) turn -= 2 * Math.PI;
    const parts = Math.ceil(Math.abs(turn) / (Math.PI / 2) - 1e-9);
    const step = turn / parts, handle = 4 / 3 * Math.tan(step / 4);
    const at = (x, y) => [cx + rx * x * cos - ry * y * sin, cy + rx * x * sin + ry * y * cos];
    for (let i = 0; i < parts; i++) {
        const a = from + i * step, b = a + step;
        path.curve(...at(Math.cos(a) - handle * Math.sin(a), Math.sin(a) + handle * Math.cos(a)),
            ...at(Math.cos(b) + handle * Math.sin(b), Math.sin(b) - handle * Math.cos(b)),
            ...(i === parts - 1 ? [x1, y1] : at(Math.cos(b), Math.sin(b))));
    }
}

/** The numbers of one command; an arc's two flags may stand without a space after them. */
function numbersOf(command, text) {
    const numbers = [];
    const pattern = /[-+]?(?:\d+\.?\d*|\.\d+)(?:[eE][-+]?\d+)?/y;
    for (let at = 0; at < text.length;) {
        if (/[\s,]/.test(text[at])) {
            at++;
        } else if (command.toLowerCase() === "a" && [3, 4].includes(numbers.length % 7)) {
            numbers.push(Number(text[at++]));
        } else {
            pattern.lastIndex = at;
            const found = pattern.exec(text);
            if (!found)
                throw new Error(`not a number in "${text}"`);
            numbers.push(Number(found[0]));
            at = pattern.lastIndex;
        }
    }
    return numbers;
}

const lengths = { m: 2, l: 2, h: 1, v: 1, c: 6, s: 4, q: 4, t: 2, a: 7, z: 0 };

function drawPath(path, data) {
    let x = 0, y = 0, startX = 0, startY = 0;
    let handle = null; // the last curve's control point before its end, for a smooth one of its kind after it
    for (const [, letter, text] of data.matchAll(/([a-zA-Z])([^a-zA-Z]*)/g)) {
        const kind = letter.toLowerCase(), relative = letter === kind;
        const length = lengths[kind];
        if (length === undefined)
            throw new Error(`an unknown command ${letter}`);
        const numbers = numbersOf(letter, text);
        for (let i = 0; i === 0 || i < numbers.length; i += length || 1) {
            const n = numbers.slice(i, i + length);
            if (n.length < length)
                throw new Error(`too few numbers after ${letter}`);
            const ox = relative ? x : 0, oy = relative ? y : 0;
            const before = handle;
            handle = null;
            switch (kind) {
            case "m":
                [x, y] = [ox + n[0], oy + n[1]];
                if (i === 0) {
                    [startX, startY] = [x, y];
                    path.move(x, y);
                } else {
                    path.line(x, y);
                }
                break;
            case "l": [x, y] = [ox + n[0], oy + n[1]]; path.line(x, y); break;
            case "h": x = ox + n[0]; path.line(x, y); break;
            case "v": y = oy + n[0]; path.line(x, y); break;
            case "c": case "s": {
                const first = kind === "c" ? [ox + n[0], oy + n[1]]
                    : before?.[2] === kind ? [2 * x - before[0], 2 * y - before[1]] : [x, y];
                const rest = kind === "c" ? n.slice(2) : n;
                handle = [ox + rest[0], oy + rest[1], "s"];
                [x, y] = [ox + rest[2], oy + rest[3]];
                path.curve(...first, handle[0], handle[1], x, y);
                break;
            }
            case "q": case "t": {
                const middle = kind === "q" ? [ox + n[0], oy + n[1]]
                    : before?.[2] === kind ? [2 * x - before[0], 2 * y - before[1]] : [x, y];
                const [ex, ey] = [ox + n[length - 2], oy + n[length - 1]];
                const towards = (from, to) => from + 2 / 3 * (to - from);
                path.curve(towards(x, middle[0]), towards(y, middle[1]), towards(ex, middle[0]), towards(ey, middle[1]), ex, ey);
                handle = [...middle, "t"];
                [x, y] = [ex, ey];
                break;
            }
            case "a": {
                const [ex, ey] = [ox + n[5], oy + n[6]];
                arc(path, x, y, n[0], n[1], n[2], n[3] !== 0, n[4] !== 0, ex, ey);
                [x, y] = [ex, ey];
                break;
            }
            case "z": path.close(); [x, y] = [startX, startY]; break;
            default: throw new Error(`the command ${letter} is not supported`);
            }
        }
    }
}

function drawEllipse(path, cx, cy, rx, ry) {
    path.move(cx, cy - ry);
    arc(path, cx, cy - ry, rx, ry, 0, false, true, cx, cy + ry);
    arc(path, cx, cy + ry, rx, ry, 0, false, true, cx, cy - ry);
    path.close();
}

function drawRectangle(path, x, y, width, height, rx, ry) {
    rx = Math.min(rx, width / 2);
    ry = Math.min(ry, height / 2);
    path.move(x + rx, y);
    path.line(x + width - rx, y);
    arc(path, x + width - rx, y, rx, ry, 0, false, true, x + width, y + ry);
    path.line(x + width, y + height - ry);
    arc(path, x + width, y + height - ry, rx, ry, 0, false, true, x + width - rx, y + height);
    path.line(x + rx, y + height);
    arc(path, x + rx, y + height, rx, ry, 0, false, true, x, y + height - ry);
    path.line(x, y + ry);
    arc(path, x, y + ry, rx, ry, 0, false, true, x + rx, y);
    path.close();
}

function part([kind, attributes]) {
    const path = new Path();
    const number = (name, otherwise = 0) => Number(attributes[name] ?? otherwise);
    const points = () => numbersOf("", attributes.points);
    switch (kind) {
    case "path": drawPath(path, attributes.d); break;
    case "circle": drawEllipse(path, number("cx"), number("cy"), number("r"), number("r")); break;
    case "ellipse": drawEllipse(path, number("cx"), number("cy"), number("rx"), number("ry")); break;
    case "line": path.move(number("x1"), number("y1")); path.line(number("x2"), number("y2")); break;
    case "rect": {
        const rx = number("rx", attributes.ry), ry = number("ry", attributes.rx);
        drawRectangle(path, number("x"), number("y"), number("width"), number("height"), rx, ry);
        break;
    }
    case "polyline": case "polygon":
        points().forEach((x, i, all) => { if (i % 2 === 0) i === 0 ? path.move(x, all[1]) : path.line(x, all[i + 1]); });
        if (kind === "polygon") path.close();
        break;
    default: throw new Error(`the element ${kind} is not supported`);
    }
    return (attributes.fill && attributes.fill !== "none" ? "F" : "S") + path;
}

const drawings = JSON.parse(readFileSync(nodes, "utf8"));
const lines = Object.entries(JSON.parse(readFileSync(table, "utf8"))).map(([name, drawing]) => {
    const found = typeof drawing === "string" ? drawings[drawing] : drawing;
    if (!found)
        throw new Error(`${name}: there is no drawing named ${drawing}`);
    try {
        return [name, ...found.map(part)].join("\t");
    } catch (error) {
        throw new Error(`${name}: ${error.message}`);
    }
});
writeFileSync(out, lines.sort((a, b) => a < b ? -1 : 1).join("\n") + "\n");
