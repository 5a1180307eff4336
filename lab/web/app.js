// The lab view's page: furnace tiles kept live from the event stream, the firing history and
// one record at a time. Everything from the data goes into the page as text (textContent,
// attributes set one by one): furnace ids, programs and job codes may carry markup.
'use strict';

(() => {
  const TEXTS = {
    de: {
      title: 'Ovra Labor', furnaces: 'Öfen', history: 'Brennverlauf', furnace: 'Ofen',
      result: 'Ergebnis', from: 'Von', to: 'Bis', job: 'Auftrag', jobHint: 'Auftragsnummer',
      all: 'Alle', clear: 'Zurücksetzen', start: 'Start', end: 'Ende', program: 'Programm',
      duration: 'Dauer', stage: 'Stufe', timeLeft: 'Restzeit', door: 'Tür', failures: 'Störungen',
      online: 'Online', offline: 'Offline', idle: 'Kein Brand', noFurnaces:
        'Noch kein Ofen hat sich gemeldet. Öfen erscheinen hier, sobald sie ihren Zustand senden.',
      noFirings: 'Keine Brände für diese Auswahl.', loading: 'Wird geladen …',
      loadFailed: 'Laden fehlgeschlagen ({0}). Neuer Versuch folgt.', notFound: 'Dieser Brand ist unbekannt.',
      connected: 'Live', connecting: 'Verbinde …', disconnected: 'Getrennt – verbinde neu …',
      notify: 'Benachrichtigen', unitSwitch: 'Temperatureinheit', close: 'Schließen',
      downloadPdf: 'Bericht (PDF)', downloadCsv: 'Messwerte (CSV)', heatfile: 'Programm wie gebrannt',
      material: 'Material', predry: 'Vortrocknung', maxTemp: 'Höchsttemperatur', device: 'Gerät',
      noFailures: 'Keine Störungen', minutesLeft: '{0}', until: 'bis {0}', updated: 'Stand {0}',
      stageOf: 'Stufe {0}', phase_heat: 'Aufheizen', phase_hold: 'Halten', phase_pre: 'Vortrocknen',
      door_open: 'Offen', door_closed: 'Geschlossen', door_unknown: 'Unbekannt',
      result_success: 'Erfolgreich', result_failed: 'Fehlgeschlagen', result_stopped: 'Abgebrochen',
      result_interrupted: 'Unterbrochen', running: 'Läuft',
      endedBanner: '{0}: Brand „{1}“ beendet – {2}', failureBanner: '{0}: Störung {1}',
      jobFilter: 'Nur Auftrag {0} zeigen', timeAxis: 'Zeit', dismiss: 'Ausblenden',
    },
    en: {
      title: 'Ovra lab', furnaces: 'Furnaces', history: 'Firing history', furnace: 'Furnace',
      result: 'Result', from: 'From', to: 'To', job: 'Job', jobHint: 'Job code',
      all: 'All', clear: 'Reset', start: 'Start', end: 'End', program: 'Program',
      duration: 'Duration', stage: 'Stage', timeLeft: 'Time left', door: 'Door', failures: 'Failures',
      online: 'Online', offline: 'Offline', idle: 'No firing', noFurnaces:
        'No furnace has reported yet. Furnaces appear here as soon as they send their state.',
      noFirings: 'No firings match this selection.', loading: 'Loading …',
      loadFailed: 'Loading failed ({0}). Trying again.', notFound: 'This firing is unknown.',
      connected: 'Live', connecting: 'Connecting …', disconnected: 'Disconnected – reconnecting …',
      notify: 'Notify me', unitSwitch: 'Temperature unit', close: 'Close',
      downloadPdf: 'Report (PDF)', downloadCsv: 'Samples (CSV)', heatfile: 'Program as fired',
      material: 'Material', predry: 'Pre-drying', maxTemp: 'Peak temperature', device: 'Device',
      noFailures: 'No failures', minutesLeft: '{0}', until: 'until {0}', updated: 'As of {0}',
      stageOf: 'Stage {0}', phase_heat: 'Heating', phase_hold: 'Holding', phase_pre: 'Pre-drying',
      door_open: 'Open', door_closed: 'Closed', door_unknown: 'Unknown',
      result_success: 'Succeeded', result_failed: 'Failed', result_stopped: 'Stopped',
      result_interrupted: 'Interrupted', running: 'Running',
      endedBanner: '{0}: firing “{1}” ended – {2}', failureBanner: '{0}: failure {1}',
      jobFilter: 'Show job {0} only', timeAxis: 'Time', dismiss: 'Dismiss',
    },
  };
  const LANG = /^de\b/i.test(navigator.language || '') ? 'de' : 'en';
  const RESULTS = ['success', 'failed', 'stopped', 'interrupted'];
  const ID_RE = /^[A-Za-z0-9_-]{1,64}$/;
  const TIME_RE = /^(\d{4})-(\d{2})-(\d{2})T(\d{2}):(\d{2})(?::(\d{2}))?$/;
  const UNIT_KEY = 'ovra.unit';
  const LIVE_POINTS_MAX = 20000;
  const BANNERS_MAX = 5;

  // Placeholders are replaced by split/join: a furnace id holding "$&" stays itself.
  function t(key, ...args) {
    let s = TEXTS[LANG][key] ?? TEXTS.en[key] ?? key;
    args.forEach((a, i) => { s = s.split(`{${i}}`).join(String(a)); });
    return s;
  }
  const $ = (sel, root = document) => root.querySelector(sel);

  // Builds an element; children are nodes or strings (strings become text, never markup).
  function el(tag, props = {}, ...children) {
    const node = document.createElement(tag);
    for (const [k, v] of Object.entries(props)) {
      if (v === undefined || v === null || v === false) continue;
      if (k === 'class') node.className = v;
      else if (k === 'text') node.textContent = v;
      else if (k.startsWith('on')) node.addEventListener(k.slice(2), v);
      else node.setAttribute(k, v === true ? '' : String(v));
    }
    for (const c of children) if (c !== null && c !== undefined) node.append(c);
    return node;
  }

  const str = (v) => (typeof v === 'string' ? v : '');
  const num = (v) => (typeof v === 'number' && Number.isFinite(v) ? v : null);

  // ---- units and formats ------------------------------------------------------------------

  let unit = 'c';
  try { unit = localStorage.getItem(UNIT_KEY) === 'f' ? 'f' : 'c'; } catch (_) { /* private mode */ }

  const toUnit = (c) => (unit === 'f' ? 32 + c * 1.8 : c);
  const unitLabel = () => (unit === 'f' ? '°F' : '°C');
  function fmtTemp(c) {
    const v = num(c);
    return v === null ? '–' : String(Math.round(toUnit(v)));
  }

  // The controller's clock, compared only with itself: read as UTC so no time zone shifts it.
  function parseTime(s) {
    const m = TIME_RE.exec(str(s));
    if (!m) return null;
    return Date.UTC(+m[1], +m[2] - 1, +m[3], +m[4], +m[5], +(m[6] || 0)) / 1000;
  }
  function fmtDateTime(s) {
    const m = TIME_RE.exec(str(s));
    if (!m) return str(s) || '–';
    const [, y, mo, d, h, mi] = m;
    return LANG === 'de' ? `${d}.${mo}.${y} ${h}:${mi}` : `${y}-${mo}-${d} ${h}:${mi}`;
  }
  function fmtMinutes(total) {
    const v = num(total);
    if (v === null || v < 0) return '–';
    const m = Math.round(v);
    return m < 60 ? `${m} min` : `${Math.floor(m / 60)} h ${String(m % 60).padStart(2, '0')} min`;
  }
  function fmtDuration(start, end) {
    const a = parseTime(start);
    const b = parseTime(end);
    return a === null || b === null || b < a ? '–' : fmtMinutes((b - a) / 60);
  }
  // Chart time axis: hours:minutes since the firing began.
  function fmtClock(seconds) {
    const m = Math.max(0, Math.round(seconds / 60));
    return `${Math.floor(m / 60)}:${String(m % 60).padStart(2, '0')}`;
  }
  // Ticks on whole minutes (1, 2, 5, ... 240 apart), so that a short stretch of a firing
  // does not label every tick with the same minute.
  const TICK_MINUTES = [1, 2, 5, 10, 15, 30, 60, 120, 240, 480, 960];
  function minuteTicks(min, max, pixels) {
    const room = Math.max(1, Math.floor(pixels / 60));
    const span = Math.max(60, max - min);
    const step = 60 * (TICK_MINUTES.find((m) => (span / 60) / m <= room) || TICK_MINUTES[TICK_MINUTES.length - 1]);
    const ticks = [];
    for (let v = Math.ceil(min / step) * step; v <= max; v += step) ticks.push({ v, label: fmtClock(v) });
    return ticks;
  }
  const resultText = (r) => (RESULTS.includes(r) ? t(`result_${r}`) : str(r) || '–');

  // ---- server -----------------------------------------------------------------------------

  class HttpError extends Error {
    constructor(status) { super(`HTTP ${status}`); this.status = status; }
  }
  async function api(path) {
    const res = await fetch(path, { credentials: 'same-origin', headers: { Accept: 'application/json' } });
    if (res.status === 401) {
      // The session is gone (token revoked): the root answers with the pairing page.
      window.location.assign('/');
      throw new HttpError(401);
    }
    if (!res.ok) throw new HttpError(res.status);
    return res.json();
  }

  // ---- charts -----------------------------------------------------------------------------

  function chartOptions() {
    return {
      labels: [t('timeAxis'), unitLabel()],
      colors: ['#e8590c'],
      fillGraph: true,
      fillAlpha: 0.12,
      strokeWidth: 2,
      gridLineColor: '#e3e7ec',
      axisLineColor: '#c5ccd5',
      axisLabelFontSize: 12,
      yAxisLabelWidth: 42,
      includeZero: true,
      legend: 'follow',
      labelsSeparateLines: false,
      resizable: 'passive',
      axes: {
        x: { valueFormatter: fmtClock, ticker: minuteTicks },
        y: { valueFormatter: (v) => `${Math.round(v)} ${unitLabel()}`, axisLabelFormatter: (v) => String(Math.round(v)) },
      },
    };
  }
  // Samples are [seconds, °C]; the chart gets them in the unit shown.
  const chartData = (samples) => samples.map(([s, c]) => [s, toUnit(c)]);

  function drawChart(holder, existing, samples) {
    if (typeof window.Dygraph !== 'function' || samples.length === 0) return existing;
    const data = chartData(samples);
    // A line needs two points: until then the first one is drawn as a dot.
    const opts = { ...chartOptions(), drawPoints: data.length < 2, pointSize: 3 };
    if (existing) {
      existing.updateOptions({ file: data, ...opts });
      return existing;
    }
    return new window.Dygraph(holder, data, opts);
  }

  // Keeps only well-formed, time-ordered samples: a broken pair must not break the chart.
  function cleanSamples(raw) {
    if (!Array.isArray(raw)) return [];
    const out = [];
    for (const p of raw) {
      if (!Array.isArray(p) || num(p[0]) === null || num(p[1]) === null) continue;
      if (out.length && p[0] < out[out.length - 1][0]) continue;
      out.push([p[0], p[1]]);
    }
    return out;
  }

  // ---- furnace tiles ----------------------------------------------------------------------

  const furnaces = new Map(); // id -> { id, online, state, tile, live: { key, points, chart } }

  function tileFor(id) {
    let f = furnaces.get(id);
    if (f) return f;
    const tile = $('#tile-template').content.firstElementChild.cloneNode(true);
    translate(tile);
    tile.dataset.furnace = id;
    $('.tile-id', tile).textContent = id;
    f = { id, online: false, state: null, tile, live: { key: null, points: [], chart: null } };
    furnaces.set(id, f);
    const after = [...furnaces.keys()].filter((k) => k > id).sort()[0];
    $('#furnaces').insertBefore(tile, after ? furnaces.get(after).tile : null);
    $('#no-furnaces').hidden = true;
    addFurnaceOption(id);
    return f;
  }

  function applyFurnace(msg) {
    if (!msg || !ID_RE.test(str(msg.id))) return;
    const f = tileFor(msg.id);
    f.online = msg.online === true;
    const state = msg.state && typeof msg.state === 'object' ? msg.state : null;
    if (state) f.state = state;
    else if ('state' in msg) f.state = null;
    growLive(f);
    renderTile(f);
  }

  // The running firing's curve, from the states as they arrive: x is seconds since the
  // firing began by the controller's clock, so a page opened mid-firing starts where it is.
  function growLive(f) {
    const firing = f.state && f.state.firing && typeof f.state.firing === 'object' ? f.state.firing : null;
    const live = f.live;
    const key = firing ? `${str(firing.started)}|${str(firing.program)}` : null;
    if (key !== live.key) {
      if (live.chart) live.chart.destroy();
      f.live = { key, points: [], chart: null };
    }
    const temp = num(f.state && f.state.temperature);
    if (!firing || temp === null) return;
    const begun = parseTime(firing.started);
    const now = parseTime(f.state.time);
    if (begun === null || now === null) return;
    const x = Math.max(0, now - begun);
    const pts = f.live.points;
    const last = pts[pts.length - 1];
    if (last && x < last[0]) return; // an older state arriving late
    if (last && x === last[0]) last[1] = temp;
    else pts.push([x, temp]);
    if (pts.length > LIVE_POINTS_MAX) pts.splice(0, pts.length - LIVE_POINTS_MAX);
  }

  function renderTile(f) {
    const { tile, state } = f;
    const firing = state && state.firing && typeof state.firing === 'object' ? state.firing : null;
    tile.classList.toggle('offline', !f.online);
    tile.classList.toggle('firing', !!firing);
    const badge = $('.badge.online', tile);
    badge.textContent = f.online ? t('online') : t('offline');
    badge.dataset.on = f.online ? '1' : '0';
    $('.temp-value', tile).textContent = fmtTemp(state && state.temperature);
    $('.temp-unit', tile).textContent = unitLabel();
    $('.program', tile).textContent = firing ? str(firing.program) || '–' : t('idle');
    $('.job', tile).textContent = firing ? str(firing.job) : '';

    let stage = '–';
    if (firing) {
      const parts = [];
      if (num(firing.stage) !== null) parts.push(t('stageOf', firing.stage));
      const phase = str(firing.phase);
      if (phase) parts.push(TEXTS[LANG][`phase_${phase}`] ? t(`phase_${phase}`) : phase);
      stage = parts.join(' · ') || '–';
    }
    $('.stage', tile).textContent = stage;
    let left = '–';
    if (firing) {
      left = fmtMinutes(firing.minutes_left);
      if (str(firing.end)) left = left === '–' ? t('until', firing.end) : `${left} (${t('until', firing.end)})`;
    }
    $('.left', tile).textContent = left;
    const door = str(state && state.door);
    const doorCell = $('.door', tile);
    doorCell.textContent = door ? (TEXTS[LANG][`door_${door}`] ? t(`door_${door}`) : door) : '–';
    doorCell.dataset.door = door;

    const list = $('.failures', tile);
    const codes = state && Array.isArray(state.failures) ? state.failures.filter((c) => typeof c === 'string') : [];
    list.replaceChildren(...codes.map((c) => el('li', { class: 'chip bad', text: c })));
    list.hidden = codes.length === 0;

    $('.tile-foot', tile).textContent = state && str(state.time) ? t('updated', fmtDateTime(state.time)) : '';

    const box = $('.chart-box.live', tile);
    box.hidden = !firing || f.live.points.length === 0;
    if (!box.hidden) f.live.chart = drawChart($('.chart', box), f.live.chart, f.live.points);
  }

  async function refreshFurnaces() {
    const list = await api('/api/furnaces');
    if (!Array.isArray(list)) return;
    list.forEach(applyFurnace);
    $('#no-furnaces').hidden = furnaces.size > 0;
  }

  // ---- banners and notifications ----------------------------------------------------------

  function banner(kind, text) {
    const box = $('#banners');
    const b = el('div', { class: `banner ${kind}`, role: 'alert' },
      el('span', { class: 'banner-text', text }),
      el('button', { type: 'button', class: 'close', 'aria-label': t('dismiss'), text: '×', onclick: () => b.remove() }));
    box.prepend(b);
    while (box.children.length > BANNERS_MAX) box.lastElementChild.remove();
  }
  function notify(text) {
    if (!('Notification' in window) || Notification.permission !== 'granted') return;
    try { new Notification(t('title'), { body: text, tag: text }); } catch (_) { /* e.g. mobile: only via a worker */ }
  }
  function setupNotifyButton() {
    const btn = $('#notify');
    if (!('Notification' in window) || Notification.permission !== 'default') return;
    btn.hidden = false;
    btn.addEventListener('click', () => {
      Notification.requestPermission().finally(() => { btn.hidden = Notification.permission === 'default'; });
    });
  }

  function onEvent(ev) {
    if (!ev || !ID_RE.test(str(ev.furnace))) return;
    if (ev.event === 'firing_ended') {
      const r = str(ev.result);
      const text = t('endedBanner', ev.furnace, str(ev.program) || '–', resultText(r));
      banner(r === 'success' ? 'good' : 'bad', text);
      notify(text);
    } else if (ev.event === 'failure') {
      const text = t('failureBanner', ev.furnace, str(ev.code) || '?');
      banner('bad', text);
      notify(text);
    }
  }

  // ---- event stream -----------------------------------------------------------------------

  function setConn(state) {
    $('#conn').dataset.state = state;
    $('#conn-text').textContent = t(state);
  }
  function parseData(e) {
    try { return JSON.parse(e.data); } catch (_) { return null; }
  }

  let retry = 1000;
  // EventSource reconnects by itself after a dropped stream; it gives up only when the
  // server refuses (e.g. 401), so then we start a new one, after asking whether we are paired.
  function connect() {
    setConn('connecting');
    const es = new EventSource('/api/events');
    es.addEventListener('open', () => {
      retry = 1000;
      setConn('connected');
      // Whatever happened while the stream was down is fetched anew.
      refreshFurnaces().catch(() => {});
      scheduleHistory(0);
    });
    es.addEventListener('furnace', (e) => applyFurnace(parseData(e)));
    es.addEventListener('event', (e) => onEvent(parseData(e)));
    es.addEventListener('record', () => scheduleHistory(300));
    es.addEventListener('error', () => {
      setConn('disconnected');
      if (es.readyState !== EventSource.CLOSED) return;
      es.close();
      api('/api/furnaces').catch(() => {});
      setTimeout(connect, retry);
      retry = Math.min(retry * 2, 30000);
    });
  }

  // ---- history ----------------------------------------------------------------------------

  const form = $('#filters');
  let historyTimer = null;
  let historySeq = 0;

  function addFurnaceOption(id) {
    const sel = form.elements.furnace;
    if ([...sel.options].some((o) => o.value === id)) return;
    const opts = [...sel.options].slice(1);
    const after = opts.find((o) => o.value > id);
    sel.insertBefore(el('option', { value: id, text: id }), after || null);
  }

  function scheduleHistory(delay) {
    clearTimeout(historyTimer);
    historyTimer = setTimeout(() => loadHistory().catch(() => {}), delay);
  }

  function historyQuery() {
    const q = new URLSearchParams();
    for (const name of ['furnace', 'result', 'from', 'to', 'job']) {
      const v = form.elements[name].value.trim();
      if (v) q.set(name, v);
    }
    return q.toString();
  }

  async function loadHistory() {
    const seq = ++historySeq;
    const note = $('#history-state');
    let list;
    try {
      const q = historyQuery();
      list = await api(`/api/firings${q ? `?${q}` : ''}`);
    } catch (err) {
      if (seq !== historySeq) return;
      note.textContent = t('loadFailed', err.message);
      note.hidden = false;
      scheduleHistory(10000);
      return;
    }
    if (seq !== historySeq) return; // a newer filter overtook this answer
    const rows = (Array.isArray(list) ? list : []).filter((r) => r && ID_RE.test(str(r.id)));
    note.textContent = t('noFirings');
    note.hidden = rows.length > 0;
    $('#firings').hidden = rows.length === 0;
    $('#firings tbody').replaceChildren(...rows.map(historyRow));
    rows.forEach((r) => { if (ID_RE.test(str(r.furnace))) addFurnaceOption(r.furnace); });
  }

  function historyRow(r) {
    const job = str(r.job);
    const tr = el('tr', { 'data-id': r.id, tabindex: 0 },
      el('td', { 'data-label': t('start'), text: fmtDateTime(r.start) }),
      el('td', { 'data-label': t('furnace'), text: str(r.furnace) }),
      el('td', { 'data-label': t('program'), class: 'strong' },
        el('a', { href: `#firing/${r.id}`, text: str(r.program) || '–' })),
      el('td', { 'data-label': t('job') }, job
        ? el('button', { type: 'button', class: 'chip job-chip', title: t('jobFilter', job), text: job,
          onclick: (e) => { e.stopPropagation(); form.elements.job.value = job; scheduleHistory(0); } })
        : '–'),
      el('td', { 'data-label': t('result') }, el('span', { class: `badge r-${RESULTS.includes(r.result) ? r.result : 'other'}`, text: resultText(r.result) })),
      el('td', { 'data-label': t('duration'), text: fmtDuration(r.start, r.end) }));
    const open = () => { window.location.hash = `firing/${r.id}`; };
    tr.addEventListener('click', (e) => { if (!e.target.closest('a, button')) open(); });
    tr.addEventListener('keydown', (e) => { if (e.key === 'Enter' && e.target === tr) open(); });
    return tr;
  }

  form.addEventListener('input', () => scheduleHistory(300));
  form.addEventListener('change', () => scheduleHistory(0));
  form.addEventListener('reset', () => scheduleHistory(0));
  form.addEventListener('submit', (e) => { e.preventDefault(); scheduleHistory(0); });

  // ---- one record -------------------------------------------------------------------------

  let shown = null; // { id, record, chart }

  function closeRecord() {
    if (shown && shown.chart) shown.chart.destroy();
    shown = null;
    $('#record').hidden = true;
    document.body.classList.remove('modal');
  }

  async function openRecord(id) {
    closeRecord();
    shown = { id, record: null, chart: null };
    $('#record').hidden = false;
    document.body.classList.add('modal');
    $('#record-title').textContent = '';
    $('#record-sub').textContent = '';
    $('#record-result').textContent = '';
    $('#record-body').hidden = true;
    const note = $('#record-state');
    note.textContent = t('loading');
    note.hidden = false;
    let rec;
    try {
      rec = await api(`/api/firings/${encodeURIComponent(id)}`);
    } catch (err) {
      if (!shown || shown.id !== id) return;
      note.textContent = err.status === 404 ? t('notFound') : t('loadFailed', err.message);
      return;
    }
    if (!shown || shown.id !== id || !rec || typeof rec !== 'object') return;
    shown.record = rec;
    note.hidden = true;
    renderRecord();
    $('#record-close').focus();
  }

  function renderRecord() {
    const rec = shown.record;
    const id = shown.id;
    $('#record-title').textContent = str(rec.program) || '–';
    $('#record-sub').textContent = [str(rec.furnace), str(rec.job)].filter(Boolean).join(' · ');
    const badge = $('#record-result');
    badge.textContent = resultText(rec.result);
    badge.className = `badge r-${RESULTS.includes(rec.result) ? rec.result : 'other'}`;

    const samples = cleanSamples(rec.samples);
    const peak = samples.reduce((m, p) => Math.max(m, p[1]), -Infinity);
    const dev = rec.device && typeof rec.device === 'object' ? rec.device : {};
    const facts = [
      [t('start'), fmtDateTime(rec.start)],
      [t('end'), fmtDateTime(rec.end)],
      [t('duration'), fmtDuration(rec.start, rec.end)],
      [t('material'), str(rec.material) || '–'],
      [t('predry'), num(rec.predry) ? fmtMinutes(rec.predry) : '–'],
      [t('maxTemp'), samples.length ? `${fmtTemp(peak)} ${unitLabel()}` : '–'],
      [t('device'), [str(dev.type), str(dev.serial)].filter(Boolean).join(' · ') || '–'],
    ];
    $('#record-facts').replaceChildren(...facts.map(([k, v]) => el('div', {}, el('dt', { text: k }), el('dd', { text: v }))));

    const fails = Array.isArray(rec.failures) ? rec.failures.filter((x) => x && typeof x === 'object') : [];
    $('#record-failures').replaceChildren(...(fails.length
      ? fails.map((x) => el('li', {}, el('span', { class: 'chip bad', text: str(x.code) || '?' }), el('span', { text: fmtDateTime(x.time) })))
      : [el('li', { class: 'none', text: t('noFailures') })]));

    const base = `/api/firings/${encodeURIComponent(id)}`;
    $('#record-pdf').href = `${base}.pdf`;
    $('#record-csv').href = `${base}.csv`;
    $('#record-heatfile').textContent = str(rec.heatfile);
    $('.heatfile').hidden = !str(rec.heatfile);

    $('#record-body').hidden = false;
    const box = $('#record-chart').parentElement;
    box.hidden = samples.length === 0;
    if (shown.chart) { shown.chart.destroy(); shown.chart = null; }
    // Drawn once the card is laid out: a hidden holder has no size.
    if (samples.length) shown.chart = drawChart($('#record-chart'), null, samples);
  }

  function route() {
    const m = /^#firing\/(.+)$/.exec(window.location.hash);
    let id = null;
    if (m) { try { id = decodeURIComponent(m[1]); } catch (_) { id = null; } }
    if (id && ID_RE.test(id)) { if (!shown || shown.id !== id) openRecord(id); } else if (shown || !$('#record').hidden) closeRecord();
  }
  window.addEventListener('hashchange', route);
  $('#record-close').addEventListener('click', () => { history.replaceState(null, '', window.location.pathname + window.location.search); route(); });
  $('#record').addEventListener('click', (e) => { if (e.target === $('#record')) $('#record-close').click(); });
  document.addEventListener('keydown', (e) => { if (e.key === 'Escape' && shown) $('#record-close').click(); });

  // ---- units switch and texts -------------------------------------------------------------

  function setUnit(u) {
    unit = u;
    try { localStorage.setItem(UNIT_KEY, u); } catch (_) { /* not remembered */ }
    for (const b of document.querySelectorAll('[data-unit]')) b.setAttribute('aria-pressed', String(b.dataset.unit === unit));
    for (const f of furnaces.values()) renderTile(f);
    if (shown && shown.record) renderRecord();
  }
  for (const b of document.querySelectorAll('[data-unit]')) b.addEventListener('click', () => setUnit(b.dataset.unit));

  function translate(root) {
    for (const n of root.querySelectorAll('[data-i18n]')) n.textContent = t(n.dataset.i18n);
    for (const n of root.querySelectorAll('[data-i18n-label]')) n.setAttribute('aria-label', t(n.dataset.i18nLabel));
    for (const n of root.querySelectorAll('[data-i18n-placeholder]')) n.setAttribute('placeholder', t(n.dataset.i18nPlaceholder));
  }

  document.documentElement.lang = LANG;
  document.title = t('title');
  translate(document);
  setUnit(unit);
  setupNotifyButton();
  refreshFurnaces().then(() => { $('#no-furnaces').hidden = furnaces.size > 0; }).catch(() => {});
  loadHistory().catch(() => {});
  connect();
  route();
})();
