"""Curves of capacitors from Python, through one running tavik-cli."""
import json
import subprocess


class Tavik:
    def __init__(self, program="tavik-cli", *options):
        self.batch = subprocess.Popen([program, "curve", "--requests", "-", *options], encoding="utf-8",
                                      stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)

    def __call__(self, **request):
        """The answer to a request such as part="...", chart="...", dcBias="12V"; ValueError with its error."""
        self.batch.stdin.write(json.dumps(request) + "\n")
        self.batch.stdin.flush()
        answer = json.loads(self.batch.stdout.readline())
        if "error" in answer:
            raise ValueError(answer["error"])
        return answer

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.batch.communicate()
