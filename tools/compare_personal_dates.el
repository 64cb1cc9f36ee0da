;; Compares birthdays and yahrzeit with those of the calendar of GNU Emacs (Debian: emacs-nox).
;;
;;   build/native/tools/print_answers personal | emacs --batch --script tools/compare_personal_dates.el
;;
;; Lists what differs; exit code 1 then.
(require 'cal-hebrew)

(let ((answers 0) (differences 0) line)
  (while (setq line (ignore-errors (read-from-minibuffer "")))
    (when (string-match "\\`\\([a-z]+\\) \\([0-9]+\\)\\.\\([0-9]+\\)\\.\\([0-9]+\\) \\([0-9]+\\) \\(.*\\)\\'" line)
      (let* ((number (lambda (i) (string-to-number (match-string i line))))
             (date (list (funcall number 3) (funcall number 2) (funcall number 4)))
             (year (funcall number 5))
             (ours (match-string 6 line))
             (kept (calendar-gregorian-from-absolute
                    (if (equal (match-string 1 line) "birthday")
                        (calendar-hebrew-birthday date year)
                      (calendar-hebrew-yahrzeit date year))))
             (theirs (format "%04d-%02d-%02d" (nth 2 kept) (nth 0 kept) (nth 1 kept))))
        (setq answers (1+ answers))
        (unless (equal ours theirs)
          (setq differences (1+ differences))
          (when (<= differences 100) (princ (format "%s: Emacs has %s\n" line theirs)))))))
  (princ (format "%d answers compared, %d differ\n" answers differences))
  (kill-emacs (if (or (> differences 0) (= answers 0)) 1 0)))
